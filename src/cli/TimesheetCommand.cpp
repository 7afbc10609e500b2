#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "cli/PeriodArguments.h"
#include "cli/ProjectNames.h"
#include "cli/TextTable.h"
#include "cli/WordArgument.h"
#include "engine/core/ProjectFacts.h"
#include "review/ActivityReader.h"
#include "review/CsvField.h"
#include "review/TimeText.h"
#include "review/TimesheetPage.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/ProfileSettings.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

std::string Joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const auto& text : texts) {
        all += (all.empty() ? "" : "; ") + text;
    }
    return all;
}

/// A project as its list spells it, else as the first of its activities does, else as it is given.
std::string Spelled(const std::string& name, const Profile& profile, const std::vector<Activity>& activities)
{
    if (IsNoProject(name)) {
        return NoProject;
    }
    const auto listed
        = ListedProjects(profile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectListValue()).ToText());
    const auto found = std::find_if(
        listed.begin(), listed.end(), [&name](const auto& known) { return EqualIgnoringCase(known, name); });
    if (found != listed.end()) {
        return *found;
    }
    return activities.empty() ? name : activities.front().project;
}

class TimesheetCommand final : public Command
{
public:
    TimesheetCommand()
        : Command({ "timesheet", "Make a list of the hours of one project, to send to a client",
            "A line for each day with its measured and its billed time and what was done,\n"
            "what took longest first. Nothing of other projects is in it. It is printed, or\n"
            "written in the form that the end of the file's name says:\n"
            "\n"
            "  .html  a page, also for printing\n"
            "  .txt   plain text\n"
            "  .csv   a table for spreadsheets\n"
            "  .json  all of it for other programs\n"
            "  .eml   an e-mail with the page, which your mail program opens for sending\n"
            "\n"
            "Billed time is rounded up where --round says so; measured time stays as it is.\n"
                + PeriodArguments::HelpWith("this month")
                + "\n"
                  "  tempodial timesheet Riverside\n"
                  "  tempodial timesheet Riverside last-month --round 15 --rate 95 --currency EUR \\\n"
                  "    --out riverside.html\n"
                  "  tempodial timesheet Riverside 2006-10 --what none --out riverside.csv" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("PROJECT", mProject, "The project");
        mDays.Declare(arguments);
        arguments.Optional("--round MIN", mRound, "Round billed time up to whole steps of that many minutes");
        arguments.Optional(
            "--round-by WHAT", mRoundBy, "What is rounded: each day, each entry or the total; default day");
        arguments.Optional("--rate N", mRate, "What an hour costs, such as 95 or 82.50");
        arguments.Optional("--currency TEXT", mCurrency, "What stands behind the amount, such as EUR");
        arguments.Optional("--what WHAT", mWhat,
            "What tells what was done: descriptions, applications or none;\ndefault descriptions");
        mOut.Declare(
            arguments, "The file to write (.html, .txt, .csv, .json, .eml), instead\nof standard output", false);
    }

    Reply Run(const Options& options) override
    {
        RequireProjectName(mProject);
        const auto terms = Terms();
        const auto days = mDays.Days(options, "month");
        const bool isFile = mOut.IsNamed();
        const auto form = isFile ? mOut.Form({ "html", "txt", "csv", "json", "eml" }) : "";
        const auto profile = ReadProfile(options);
        auto activities = ActivitiesStartingIn(profile, days);
        activities.erase(
            std::remove_if(activities.begin(), activities.end(),
                [this](const auto& activity) { return !EqualIgnoringCase(ProjectNameOf(activity), mProject); }),
            activities.end());
        if (activities.empty()) {
            RequireKnownProject(profile, mProject);
        }
        const auto sheet = Timesheet::Of(Spelled(mProject, profile, activities), days, activities, terms);
        Reply reply;
        if (options.json) {
            reply.document = Document(sheet);
        }
        if (isFile) {
            Write(sheet, form, AuthorOf(profile), reply);
        } else {
            reply.text = Text(sheet, AuthorOf(profile));
        }
        return reply;
    }

private:
    TimesheetTerms Terms() const
    {
        constexpr std::int32_t MinutesOfDay = 24 * 60;
        TimesheetTerms terms;
        if (mRound) {
            terms.step = ToCount("--round", *mRound, 1, MinutesOfDay);
        }
        terms.rounding = ToValue<TimesheetTerms::Rounding>("--round-by", mRoundBy, { "day", "entry", "total" });
        terms.what = ToValue<TimesheetTerms::What>("--what", mWhat, { "descriptions", "applications", "none" });
        if (mRate) {
            terms.rate = HourlyRate::Read(*mRate);
            if (!terms.rate) {
                throw UsageError("--rate can't be " + InQuotes(*mRate)
                    + ": give what an hour costs, from 0 to 1000000, with up to four decimals behind a point");
            }
        }
        return terms;
    }

    static JsonValue Document(const Timesheet& sheet)
    {
        constexpr double Hundred = 100;
        auto days = JsonValue::Array();
        for (const auto& day : sheet.days) {
            days.Append({ { "day", IsoDay(day.date) }, { "minutes", day.minutes },
                { "billedMinutes", day.billedMinutes }, { "what", day.what } });
        }
        JsonValue document { { "project", sheet.project }, { "from", IsoDay(sheet.period.first) },
            { "to", IsoDay(sheet.period.last) }, { "days", std::move(days) }, { "minutes", sheet.minutes },
            { "billedMinutes", sheet.billedMinutes }, { "amount", nullptr } };
        if (sheet.amount) {
            document.Set("amount", static_cast<double>(sheet.amount->hundredths) / Hundred);
        }
        return document;
    }

    static std::string Csv(const Timesheet& sheet)
    {
        auto csv = "day,minutes,hours,billed hours,what" + std::string(CrLf);
        for (const auto& day : sheet.days) {
            csv += IsoDay(day.date) + "," + std::to_string(day.minutes) + "," + DecimalHours(day.minutes) + ","
                + DecimalHours(day.billedMinutes) + "," + CsvField(Joined(day.what)) + std::string(CrLf);
        }
        return csv;
    }

    ShownText Text(const Timesheet& sheet, const std::string& author) const
    {
        using enum TextTable::Side;
        ShownText text;
        text.AddHeading(IsolatedLine(sheet.project) + TimesheetTitle(sheet).substr(sheet.project.size()));
        if (!author.empty()) {
            text += IsolatedLine(author) + "\n";
        }
        TextTable table({ Left, Right, Right, Left });
        table.AddHeading({ "DAY", "MEASURED", "BILLED", mWhat == "none" ? "" : "WHAT" });
        for (const auto& day : sheet.days) {
            table.Add(
                { IsoDay(day.date), HourText(day.minutes), HourText(day.billedMinutes), Joined(ShownTexts(day)) });
        }
        table.AddHeading({ "TOTAL", HourText(sheet.minutes), HourText(sheet.billedMinutes), "" });
        text += "\n";
        text += std::move(table);
        if (sheet.amount) {
            text += "\nAmount: " + sheet.amount->Text() + (mCurrency.empty() ? "" : " " + IsolatedLine(mCurrency))
                + "\n";
        }
        return text;
    }

    void Write(const Timesheet& sheet, const std::string& form, const std::string& author, Reply& reply) const
    {
        if (form == "eml") {
            MailDraft mail;
            mail.subject = TimesheetTitle(sheet);
            mail.body = TimesheetPage(sheet, author, mCurrency);
            mail.isHtml = true;
            mOut.Write(mail, Text(sheet, author).Text(), reply);
        } else if (form == "html") {
            mOut.Write(TimesheetPage(sheet, author, mCurrency), reply);
        } else if (form == "csv") {
            mOut.Write(Csv(sheet), reply);
        } else if (form == "json") {
            mOut.Write(Document(sheet).Text() + "\n", reply);
        } else {
            mOut.Write(Text(sheet, author).Text(), reply);
        }
    }

    std::string mProject;
    PeriodArguments mDays;
    std::optional<std::string> mRound;
    std::string mRoundBy = "day";
    std::optional<std::string> mRate;
    std::string mCurrency;
    std::string mWhat = "descriptions";
    OutputFile mOut;
};

}

std::unique_ptr<Command> MakeTimesheetCommand()
{
    return std::make_unique<TimesheetCommand>();
}

}
