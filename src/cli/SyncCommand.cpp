#include "base/Failure.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/Interruption.h"
#include "cli/OlderDays.h"
#include "cli/PeriodArguments.h"
#include "host/system/HostClock.h"
#include "session/LastSync.h"
#include "session/ProductFacts.h"
#include "session/TrackerFiles.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

namespace {

/// Line numbers that a message names.
constexpr std::size_t NumbersShown = 10;

std::string NameIn(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string Listed(const std::vector<std::string>& texts)
{
    std::string list;
    for (const auto& text : texts) {
        list += (list.empty() ? "" : ", ") + text;
    }
    return list;
}

/// The tracker files that are too old for an import, by name.
std::vector<std::string> TooOldFiles(const ConnectedRun& run)
{
    try {
        return TooOldFiles(*run.Host().fileSystem, run.DataFolder(), run.Host().clock->Now());
    } catch (const Failure&) {
        // A folder that can't be read the import has told of.
        return {};
    }
}

/// The same together with those that the run has put aside.
std::vector<std::string> LeftOut(const ConnectedRun& run)
{
    auto names = TooOldFiles(run);
    for (const auto& path : run.KeptFiles()) {
        names.push_back(NameIn(path));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The numbers of the lines that couldn't be read, by the name of their file.
using NumbersOfFiles = std::map<std::string, std::vector<std::int64_t>>;

JsonValue UnreadJson(const NumbersOfFiles& lines)
{
    auto unread = JsonValue::Array();
    for (const auto& [file, numbers] : lines) {
        for (const auto number : numbers) {
            unread.Append({ { "file", file }, { "line", number } });
        }
    }
    return unread;
}

/// What is told of files and lines that were left out.
std::vector<std::string> Remarks(const ConnectedRun& run, const NumbersOfFiles& unread)
{
    std::vector<std::string> remarks;
    for (const auto& [file, numbers] : unread) {
        std::vector<std::string> shown;
        for (std::size_t i = 0; i < std::min(numbers.size(), NumbersShown); ++i) {
            shown.push_back(std::to_string(numbers[i]));
        }
        const auto more = numbers.size() - shown.size();
        remarks.push_back(file + ": couldn't read " + (numbers.size() == 1 ? "line " : "lines ") + Listed(shown)
            + (more == 0 ? "" : " and " + std::to_string(more) + " more"));
    }
    if (const auto files = TooOldFiles(run); !files.empty()) {
        remarks.push_back("left out as older than " + std::to_string(SavedDataDays) + " days: " + Listed(files));
    }
    return remarks;
}

class SyncCommand final : public Command
{
public:
    SyncCommand()
        : Command({ "sync", "Make activities of the tracker's files",
            "Imports what the tracker wrote today and in the 21 days before: new activities\n"
            "are created, running ones extended, and short ones in between listed as\n"
            "details. What was imported isn't imported again. A file of a past day is then\n"
            "kept under its finished name. Files that are older and lines that can't be\n"
            "read are named. Ctrl-C stops it; the next sync goes on from there.\n"
            "\n"
            "--since takes older files too, day by day, oldest first, also those that were\n"
            "kept for being too old.\n"
            "\n"
            "  tempodial sync\n"
            "  tempodial sync --since 2006-08-01\n"
            "  tempodial sync --quiet --json" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--since DAY", mSince,
            "Take older days too, from that one on, or from the\nfirst day of a word for several");
    }

    Reply Run(const Options& options) override
    {
        HostClock clock(options.now);
        const auto now = clock.Now();
        const auto since = mSince ? PeriodArguments::ToPeriod("--since", *mSince, options).first : now;
        const Interruption interruption;
        const OlderDays older(options, since, now);
        ConnectedRun run(older.Started(options));
        if (!older.AreNone()) {
            run.Profile().Clock()->Set(clock.Now());
        }
        // As long as nothing else is kept it was interrupted, by whatever it was.
        LastSync { .when = run.Host().clock->Now(), .outcome = "interrupted" }.Keep(run.Profile());
        if (!older.AreNone()) {
            older.Import(run, [&](std::int32_t days) { Sync(run, days); });
            run.Profile().Clock()->Set(clock.Now());
        }
        if (!Interruption::IsRequested()) {
            Sync(run, SavedDataDays);
        }
        if (!older.AreNone() && !Interruption::IsRequested()) {
            // What is left of older files is looked for only now.
            run.Reconnect(options);
        }
        if (run.WasAddInRefusing()) {
            run.Complain("no new activity can be made, since the form of activities can't be used: install the program "
                         "again");
        }
        auto reply = run.Concluded(Answer(run));
        if (options.screen.isTerminal && reply.status == ExitStatus::Done && !TrackerFiles::Of(run.Profile()).latest) {
            reply.remarks.emplace_back("nothing was recorded yet: \"tempodial track install\" records from now on, "
                                       "\"tempodial import --list\" shows what another tracker recorded, and "
                                       "\"tempodial demo\" invents some weeks");
        }
        Keep(run, reply);
        return reply;
    }

private:
    /// Imports what a sync of that many days back from the clock's day does.
    void Sync(const ConnectedRun& run, std::int32_t days)
    {
        run.AddIn().SyncData(days, true);
        for (const auto& line : run.UnreadLines()) {
            mUnread[TrackerFileName(line.day)].push_back(line.number);
        }
    }

    std::int32_t UnreadCount() const
    {
        std::size_t count = 0;
        for (const auto& [file, numbers] : mUnread) {
            count += numbers.size();
        }
        return static_cast<std::int32_t>(count);
    }

    void Keep(const ConnectedRun& run, const Reply& reply) const
    {
        const auto& saves = run.Saves();
        const bool hasSaved = saves.created + saves.extended + saves.detailed > 0;
        const auto* outcome = reply.status == ExitStatus::Done ? "whole"
            : reply.status == ExitStatus::Interrupted          ? "interrupted"
            : hasSaved                                         ? "partly"
                                                               : "failed";
        LastSync { run.Host().clock->Now(), outcome, saves.created, saves.extended, saves.detailed, UnreadCount() }
            .Keep(run.Profile());
    }

    Reply Answer(const ConnectedRun& run) const
    {
        const bool cancelled = Interruption::IsRequested();
        const auto& saves = run.Saves();
        Reply reply;
        reply.document = { { "created", saves.created }, { "extended", saves.extended }, { "detailed", saves.detailed },
            { "cancelled", cancelled }, { "leftOut", LeftOut(run) }, { "unread", UnreadJson(mUnread) } };
        reply.summary = std::to_string(saves.created) + " created, " + std::to_string(saves.extended) + " extended, "
            + std::to_string(saves.detailed) + " detailed" + (cancelled ? ", then interrupted" : "") + "\n";
        reply.remarks = Remarks(run, mUnread);
        return reply;
    }

    std::optional<std::string> mSince;
    NumbersOfFiles mUnread;
};

}

std::unique_ptr<Command> MakeSyncCommand()
{
    return std::make_unique<SyncCommand>();
}

}
