#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ImportRun.h"
#include "cli/Interruption.h"
#include "cli/PeriodArguments.h"
#include "cli/SourceFile.h"
#include "cli/WaitingLines.h"
#include "cli/WordArgument.h"
#include "cli/ZoneArgument.h"
#include "host/files/ProgramFolder.h"
#include "host/files/ProgramModule.h"
#include "host/settings/TomlSettings.h"
#include "host/system/HostClock.h"
#include "portable/TextEncoding.h"
#include "session/OpenProfile.h"
#include "slots/ViewSettings.h"
#include "sources/ImportPlan.h"
#include "sources/SourceProblem.h"
#include "sources/Sources.h"
#include "terminal/Arguments.h"
#include "terminal/NearestName.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

constexpr auto ImportedProgramsFile = "/programs.toml";
constexpr auto PrivacyRulesFile = "/track.toml";

/// Reads a calendar by the module that can.
bool ReadCalendar(const std::string& text, const CalendarSpan& span, CalendarContent& content)
{
    const ProgramModule module(ProgramModule::PathOf(CalendarModule));
    return module.Get<CalendarTextReader>(CalendarTextReaderName)(text, span, content);
}

/// What has become of an import's plan.
struct ImportOutcome
{
    ImportPlan::Days days;
    std::int64_t created = 0;
    std::int64_t extended = 0;
    std::int64_t detailed = 0;
};

class ImportCommand final : public Command
{
public:
    ImportCommand()
        : Command({ "import", "Bring what another tracker recorded into the work log",
            "Reads what another program exports and makes activities of it, of days that are\n"
            "over and of times that nothing else has taken. What was imported isn't imported\n"
            "again, also where it was deleted since. \"import --list\" shows the sources.\n"
            "\n"
            "  tempodial import activitywatch aw-buckets-export.json --dry-run\n"
            "  curl -s localhost:5600/api/0/export | tempodial import activitywatch -\n"
            "  tempodial import toggl Toggl_time_entries.csv --from 2026-01-01\n"
            "  tempodial import csv mine.csv --as sightings --zone Europe/Zurich" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("SOURCE", mSource, "Where the file comes from; see --list");
        arguments.Optional("FILE", mFile, "The export, or - for standard input");
        arguments.Optional("--from DAY", mFrom, "First day, or a word for several, of which it is the first");
        arguments.Optional("--to DAY", mTo, "Last day, or the last of several");
        arguments.Optional(
            "--zone NAME", mZone, "Time zone in which you were, such as Europe/Zurich; default the system's");
        arguments.Optional(
            "--dates ORDER", mDates, "Order of dates with numbers alone: mdy or dmy; default told from the file");
        arguments.Optional("--as KIND", mAs, "entries, with their exact times, or sightings, which become slots");
        arguments.Flag("--no-projects", mWithoutProjects, "Leave out the projects that the file names");
        arguments.Flag("--dry-run", mIsDryRun, "Show what would be imported, and write nothing");
        arguments.Flag("--again", mIsAgain, "Import days once more, also what was deleted since");
        arguments.Flag("--yes", mIsSure, "Don't ask before --again");
        arguments.Flag("--list", mIsList, "Show the sources and what each reads");
    }

    Reply Run(const Options& options) override
    {
        if (mIsList) {
            return Sources();
        }
        if (!mSource || !mFile) {
            throw UsageError("a source and a file are needed: see \"tempodial import --list\" for the sources");
        }
        const auto& source = ChosenSource();
        const auto range = Range(options);
        const auto zone = ToZone(mZone);
        const auto dates = Dates();
        const bool asSightings = IsAsSightings(source);
        if (mIsAgain && !mIsDryRun && !mIsSure && ::isatty(STDIN_FILENO) == 0) {
            throw UsageError("--again brings back what was deleted since: say --yes if that is meant");
        }
        const auto profile = PathOfProfile(options);
        const auto views = Views(profile);
        SourceFile file(*mFile);
        const auto decoded = [](std::string line) { return DecodedLine(std::move(line)); };
        const SourceSettings settings { *zone, range.now, dates, asSightings, decoded, ReadCalendar, range.from };
        ImportPlan plan(range, views);
        TakeSource(source, file, settings, plan);
        return mIsDryRun ? Preview(options, plan) : Import(options, plan);
    }

private:
    static Reply Sources()
    {
        Reply reply { .document = JsonValue::Array() };
        for (const auto& source : AllSources()) {
            const std::string name(source.name);
            std::vector<std::string> kinds;
            if (source.hasEntries) {
                kinds.emplace_back("entries");
            }
            if (source.hasSightings) {
                kinds.emplace_back("sightings");
            }
            reply.document.Append({ { "source", name }, { "reads", std::string(source.reads) }, { "as", kinds } });
            constexpr std::size_t NameWidth = 15;
            reply.text += name + std::string(NameWidth - std::min(name.size(), NameWidth - 1), ' ')
                + std::string(source.reads) + "\n";
        }
        return reply;
    }

    const Source& ChosenSource() const
    {
        std::vector<std::string> names;
        for (const auto& source : AllSources()) {
            if (source.name == *mSource) {
                return source;
            }
            names.emplace_back(source.name);
        }
        const bool isLater = *mSource == "timing" || *mSource == "manictime";
        throw UsageError("there is no source \"" + *mSource + "\""
            + (isLater ? R"(: bring its table into the form of "csv", which "tempodial import --list" shows)"
                       : NearestAdvice(*mSource, names, "see \"tempodial import --list\" for all")));
    }

    ImportRange Range(const Options& options) const
    {
        ImportRange range;
        range.source = *mSource;
        range.now = HostClock(options.now).Now();
        range.withoutProjects = mWithoutProjects;
        if (mFrom) {
            range.from = PeriodArguments::ToPeriod("--from", *mFrom, options).first;
        }
        if (mTo) {
            range.to = PeriodArguments::ToPeriod("--to", *mTo, options).last;
        }
        if (range.from && range.to && *range.from > *range.to) {
            throw UsageError("--from " + IsoDay(*range.from) + " is later than --to " + IsoDay(*range.to)
                + ": give the earlier day as --from");
        }
        return range;
    }

    DateOrder Dates() const
    {
        if (!mDates) {
            return DateOrder::FromTheFile;
        }
        return PlaceOfWord("--dates", *mDates, { "mdy", "dmy" }) == 0 ? DateOrder::MonthFirst : DateOrder::DayFirst;
    }

    bool IsAsSightings(const Source& source) const
    {
        if (!mAs) {
            return !source.hasEntries;
        }
        const bool isAsked = PlaceOfWord("--as", *mAs, { "entries", "sightings" }) == 1;
        if (isAsked ? !source.hasSightings : !source.hasEntries) {
            throw UsageError("--as can't be \"" + *mAs + "\" for " + *mSource + ": leave it out");
        }
        return isAsked;
    }

    static std::string PathOfProfile(const Options& options)
    {
        return options.profile ? *options.profile : ProfileFolder::Default();
    }

    static ViewMaker Views(const std::string& profile)
    {
        try {
            return ViewsBy(ReadSettingsFile(profile + ImportedProgramsFile),
                ReadSettingsFile(InProgramFolder("share/tempodial") + ImportedProgramsFile),
                ReadSettingsFile(profile + PrivacyRulesFile));
        } catch (const SettingsFileError& error) {
            throw CommandError(error.what());
        }
    }

    void TakeSource(const Source& source, SourceFile& file, const SourceSettings& settings, ImportPlan& plan) const
    {
        const auto guess = SourceThatBegins(file.Beginning());
        try {
            if (file.Beginning().empty()) {
                throw WrongSource("the file is empty: export it again");
            }
            plan.Take(source.makeReader()->Read(file.Stream(), settings));
        } catch (const WrongSource& problem) {
            throw UsageError(std::string(problem.what()) + Guessed(source, guess));
        } catch (const BrokenSource& problem) {
            throw CommandError(problem.what());
        }
    }

    /// What a file may be that isn't what it is said to be.
    static std::string Guessed(const Source& source, std::string_view guess)
    {
        if (guess == "activitywatch's csv") {
            return ": this looks like ActivityWatch's table of one bucket; export all buckets as JSON, or bring it "
                   "into "
                   "the form of \"csv --as sightings\"";
        }
        if (guess.empty() || guess == source.name) {
            return "";
        }
        return ": this looks like a file of " + std::string(guess) + ", so try \"tempodial import " + std::string(guess)
            + "\"";
    }

    Reply Preview(const Options& options, const ImportPlan& plan) const
    {
        ImportLedger ledger;
        Presence taken;
        if (const auto span = plan.Span()) {
            const auto profile = ReadProfile(options);
            ledger = Ledger(profile);
            if (mIsAgain) {
                ForgetDays(ledger, *span);
            }
            taken = TimeInLog(profile, span->first, span->second);
            AddWaitingLines(profile, taken);
            AddRecordersTime(profile, taken);
        }
        ImportOutcome outcome { plan.Make(taken, ledger) };
        for (const auto& [day, planned] : outcome.days) {
            outcome.created += planned.beginning;
            outcome.extended += planned.continuing;
            outcome.detailed += planned.details;
        }
        auto reply = Answer(outcome, plan.LeftOut());
        reply.document.Set("dryRun", true);
        reply.remarks = plan.Remarks();
        AddTrouble(reply, plan.LeftOut());
        if (!reply.complaints.empty()) {
            reply.status = ExitStatus::NotDone;
        }
        return reply;
    }

    Reply Import(const Options& options, const ImportPlan& plan) const
    {
        const auto span = plan.Span();
        if (mIsAgain && !mIsSure && span) {
            Ask(*span);
        }
        const Interruption interruption;
        try {
            ImportRun run(options);
            return Imported(run, plan, span);
        } catch (const SettingsFileError& error) {
            throw CommandError(error.what());
        }
    }

    Reply Imported(ImportRun& run, const ImportPlan& plan, const std::optional<std::pair<Date, Date>>& span) const
    {
        ImportOutcome outcome;
        auto remarks = plan.Remarks();
        if (span) {
            run.AsStep([&] { outcome.days = Write(run, plan, *span, remarks); });
        }
        if (run.Connected().WasAddInRefusing()) {
            run.Connected().Complain("no new activity can be made, since the form of activities can't be used: install "
                                     "the program again");
        }
        const auto& saves = run.Connected().Saves();
        outcome.created = saves.created;
        outcome.extended = saves.extended;
        outcome.detailed = saves.detailed;
        auto reply = run.Connected().Concluded(Answer(outcome, plan.LeftOut()));
        reply.remarks = std::move(remarks);
        AddTrouble(reply, plan.LeftOut());
        if (!reply.complaints.empty() && reply.status == ExitStatus::Done) {
            reply.status = ExitStatus::NotDone;
        }
        return reply;
    }

    /// Imports what waits, and then what was planned; answers that, as far as it was written.
    ImportPlan::Days Write(ImportRun& run, const ImportPlan& plan, const std::pair<Date, Date>& span,
        std::vector<std::string>& remarks) const
    {
        if (mIsAgain) {
            ForgetDays(run.Ledger(), span);
        }
        const auto waiting = run.SyncWaiting();
        auto taken = TimeInLog(run.Connected().Profile(), span.first, span.second);
        AddRecordersTime(run.Connected().Profile(), taken);
        for (const auto day : waiting) {
            taken.Add(day.Seconds(), day.AddDays(1).Seconds());
            if (day >= span.first && day <= span.second) {
                remarks.push_back("left out " + IsoDay(day)
                    + ", whose tracker file waits: \"tempodial sync\" says what is wrong with it");
            }
        }
        auto days = plan.Make(taken, run.Ledger());
        run.Write(days);
        return days;
    }

    void ForgetDays(ImportLedger& ledger, const std::pair<Date, Date>& span) const
    {
        for (auto day = span.first; day <= span.second; day = day.AddDays(1)) {
            ledger.Forget(day);
        }
    }

    static void Ask(const std::pair<Date, Date>& span)
    {
        std::cerr << "Import " << IsoDay(span.first) << " to " << IsoDay(span.second)
                  << " again, with what was deleted since? [y/N] " << std::flush;
        std::string answer;
        std::getline(std::cin, answer);
        if (answer != "y" && answer != "Y" && answer != "yes") {
            throw CommandError("nothing was imported: answer y to do so");
        }
    }

    static ImportLedger Ledger(const Profile& profile)
    {
        try {
            return ImportLedger(ReadSettingsFile(DataPath(profile, LedgerFileName)));
        } catch (const SettingsFileError& error) {
            throw CommandError(error.what());
        }
    }

    Reply Answer(const ImportOutcome& outcome, const Skipped& skipped) const
    {
        auto told = JsonValue::Array();
        PlannedDay sum;
        for (const auto& [day, planned] : outcome.days) {
            told.Append({ { "day", IsoDay(day) }, { "slots", planned.slots }, { "entries", planned.entries },
                { "taken", planned.taken }, { "before", planned.before } });
            sum.slots += planned.slots;
            sum.entries += planned.entries;
            sum.minutesPresent += planned.minutesPresent;
            sum.minutesWritten += planned.minutesWritten;
        }
        auto reasons = JsonValue::Object();
        for (const auto& [reason, count] : skipped.Counts()) {
            reasons.Set(reason, count);
        }
        const bool isEmpty = outcome.days.empty();
        Reply reply;
        reply.document = { { "source", *mSource },
            { "from", isEmpty ? JsonValue() : JsonValue(IsoDay(outcome.days.begin()->first)) },
            { "to", isEmpty ? JsonValue() : JsonValue(IsoDay(outcome.days.rbegin()->first)) },
            { "days", std::move(told) },
            { "minutes", { { "present", sum.minutesPresent }, { "written", sum.minutesWritten } } },
            { "skipped", std::move(reasons) }, { "created", outcome.created }, { "extended", outcome.extended },
            { "detailed", outcome.detailed } };
        const auto days = TextOf(outcome, skipped);
        if (mIsDryRun) {
            reply.text = days; // that is what was asked for
        }
        reply.summary = (mIsDryRun ? "Would import " : days + "Imported ") + std::to_string(sum.minutesWritten)
            + " min of " + std::to_string(sum.minutesPresent) + ", on " + std::to_string(outcome.days.size())
            + (outcome.days.size() == 1 ? " day\n" : " days\n");
        return reply;
    }

    static std::string TextOf(const ImportOutcome& outcome, const Skipped& skipped)
    {
        std::string text;
        for (const auto& [day, planned] : outcome.days) {
            text += IsoDay(day) + "  " + std::to_string(planned.minutesWritten) + " min"
                + (planned.taken == 0 ? "" : ", " + std::to_string(planned.taken) + " in time that is taken")
                + (planned.before == 0 ? "" : ", " + std::to_string(planned.before) + " imported before") + "\n";
        }
        for (const auto& [reason, count] : skipped.Counts()) {
            text += "left out: " + std::to_string(count) + " " + reason + "\n";
        }
        return text;
    }

    /// Names the lines of a table that couldn't be read; empty when none is known.
    static std::string UnreadableLines(const Skipped& skipped)
    {
        const auto& lines = skipped.UnreadableLines();
        std::string text;
        for (const auto line : lines) {
            text += (text.empty() ? "" : ", ") + std::to_string(line);
        }
        const auto isMore = skipped.Count(Skipped::Unreadable) > static_cast<std::int64_t>(lines.size());
        return lines.empty() ? "" : (lines.size() == 1 ? " (line " : " (lines ") + text + (isMore ? ", …)" : ")");
    }

    void AddTrouble(Reply& reply, const Skipped& skipped) const
    {
        const auto add = [&reply, &skipped](const char* reason, const std::string& words) {
            if (const auto count = skipped.Count(reason); count > 0) {
                reply.complaints.push_back(std::to_string(count) + words);
            }
        };
        const bool isOne = skipped.Count(Skipped::Unreadable) == 1;
        const auto lines = UnreadableLines(skipped);
        add(Skipped::Unreadable,
            (isOne ? " record" : " records") + (" couldn't be read" + lines)
                + (lines.empty() ? ": all others were taken"
                                 : std::string(": correct ") + (isOne ? "it" : "them") + " in the file"
                            + (*mSource == "csv" ? ", with times such as 2026-11-21 10:00," : "")
                            + " and import it again; nothing comes twice"));
        add(Skipped::TooDeep, " parts of the file are nested too deep: they were left out");
        add(Skipped::TooBig, " fields are longer than 64 KiB: they were cut");
    }

    std::optional<std::string> mSource;
    std::optional<std::string> mFile;
    std::optional<std::string> mFrom;
    std::optional<std::string> mTo;
    std::optional<std::string> mZone;
    std::optional<std::string> mDates;
    std::optional<std::string> mAs;
    bool mWithoutProjects = false;
    bool mIsDryRun = false;
    bool mIsAgain = false;
    bool mIsSure = false;
    bool mIsList = false;
};

}

std::unique_ptr<Command> MakeImportCommand()
{
    return std::make_unique<ImportCommand>();
}

}
