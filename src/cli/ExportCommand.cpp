#include "cli/ActivityCsv.h"
#include "cli/ActivityList.h"
#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "cli/PeriodArguments.h"
#include "cli/ProjectArgument.h"
#include "review/ActivityCalendar.h"
#include "review/ActivityRecord.h"
#include "session/OpenProfile.h"
#include "terminal/ItemJson.h"
#include "terminal/JsonListText.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tempodial {

namespace {

using Activities = std::vector<Ref<AppointmentItem>>;

std::vector<ActivityRecord> Records(const Activities& activities)
{
    std::vector<ActivityRecord> records;
    records.reserve(activities.size());
    std::transform(activities.begin(), activities.end(), std::back_inserter(records), ReadActivity);
    return records;
}

class ExportCommand final : public Command
{
public:
    ExportCommand()
        : Command({ "export", "Write the activities for other programs",
            "Writes the activities that start in the range, both days included, in order of\n"
            "start.\n"
                + std::string(PeriodArguments::Help)
                + "\n"
                  "  ics   a calendar file (iCalendar); times are those of the wall clock, and the\n"
                  "        project is the category\n"
                  "  csv   a table with a header line; a text that a spreadsheet would run as a\n"
                  "        formula gets an apostrophe in front\n"
                  "  json  all fields as they are, as \"list --json\" gives them\n"
                  "\n"
                  "The name of the file says which, or --format does.\n"
                  "\n"
                  "  tempodial export --from 2006-10-02 --out october.ics\n"
                  "  tempodial export --format csv --from yesterday --project Riverside" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        mProject.Declare(arguments);
        arguments.Optional("--format FORMAT", mFormat, "ics, csv or json; default the end of FILE");
        mOut.Declare(arguments, "The file to write (.ics, .csv, .json), instead of standard\noutput", false);
    }

    Reply Run(const Options& options) override
    {
        const bool isFile = mOut.IsNamed();
        const auto format = Format(isFile);
        const auto days = mDays.Days(options);
        mProject.RequireUsable();
        const auto profile = ReadProfile(options);
        const auto activities = mProject.ActivitiesOf(profile, days);
        Reply reply;
        if (options.json && !isFile && format == "json") {
            reply.documentText = Items(activities);
            return reply;
        }
        auto document = Document(activities, format);
        reply.document = { { "format", format }, { "activities", activities.size() }, { "text", nullptr } };
        if (isFile) {
            mOut.Write(std::move(document), reply);
        } else {
            reply.document.Set("text", document);
            reply.content = std::move(document);
        }
        return reply;
    }

private:
    /// What --format says, or the end of the file's name; both must agree.
    std::string Format(bool isFile) const
    {
        const std::vector<std::string> formats { "ics", "csv", "json" };
        if (mFormat && std::find(formats.begin(), formats.end(), *mFormat) == formats.end()) {
            throw UsageError("--format can't be " + InQuotes(*mFormat) + ": give ics, csv or json");
        }
        const bool hasEnd = isFile && !(mFormat && mOut.End().empty());
        const auto form = hasEnd ? mOut.Form(formats) : "";
        if (!mFormat && form.empty()) {
            throw UsageError("--format is required: give ics, csv or json, or --out with a name that ends so");
        }
        if (mFormat && !form.empty() && form != *mFormat) {
            throw UsageError(
                "--format " + *mFormat + " isn't what " + InQuotes(mOut.Path()) + " ends in: leave one of them out");
        }
        return mFormat.value_or(form);
    }

    static std::string Items(const Activities& activities)
    {
        JsonListText items;
        for (const auto& activity : activities) {
            items.Append(ItemJson(NumberOf(activity), activity));
        }
        return items.Take();
    }

    static std::string Document(const Activities& activities, const std::string& format)
    {
        if (format == "ics") {
            return ActivityCalendar(Records(activities));
        }
        if (format == "csv") {
            return ActivityCsv(Records(activities));
        }
        return Items(activities) + "\n";
    }

    PeriodArguments mDays;
    ProjectArgument mProject;
    std::optional<std::string> mFormat;
    OutputFile mOut;
};

}

std::unique_ptr<Command> MakeExportCommand()
{
    return std::make_unique<ExportCommand>();
}

}
