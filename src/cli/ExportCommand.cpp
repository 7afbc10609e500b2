#include "cli/ActivityCalendar.h"
#include "cli/ActivityCsv.h"
#include "cli/ActivityList.h"
#include "cli/Commands.h"
#include "cli/DayRangeArguments.h"
#include "cli/OutputFile.h"
#include "cli/ProjectArgument.h"
#include "host/system/HostClock.h"
#include "session/OpenProfile.h"
#include "terminal/ItemJson.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <iterator>

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
                + std::string(DayRangeArguments::Help)
                + "\n"
                  "  ics   a calendar file (iCalendar); times are those of the wall clock, and the\n"
                  "        project is the category\n"
                  "  csv   a table with a header line; a text that a spreadsheet would run as a\n"
                  "        formula gets an apostrophe in front\n"
                  "  json  all fields as they are, as \"list --json\" gives them\n"
                  "\n"
                  "  tempodial export --format ics --from 2006-10-02 --out october.ics\n"
                  "  tempodial export --format csv --from yesterday" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        mProject.Declare(arguments);
        arguments.Required("--format FORMAT", mFormat, "ics, csv or json");
        mOut.Declare(arguments, "The file to write, instead of standard output", false);
    }

    Reply Run(const Options& options) override
    {
        RequireKnownFormat();
        const bool isFile = mOut.IsNamed();
        const auto days = mDays.Days(HostClock(options.now).Now());
        mProject.RequireUsable();
        const auto profile = OpenProfile(options);
        const auto activities = mProject.ActivitiesOf(profile, days);
        Reply reply;
        if (options.json && !isFile && mFormat == "json") {
            reply.document = Items(activities);
            return reply;
        }
        auto document = Document(activities);
        reply.document = { { "format", mFormat }, { "activities", activities.size() }, { "text", nullptr } };
        if (isFile) {
            mOut.Write(document);
            reply.summary = mOut.Summary();
        } else {
            reply.document.Set("text", document);
            reply.content = std::move(document);
        }
        return reply;
    }

private:
    void RequireKnownFormat() const
    {
        if (mFormat != "ics" && mFormat != "csv" && mFormat != "json") {
            throw UsageError("--format can't be \"" + mFormat + "\": give ics, csv or json");
        }
    }

    static JsonValue Items(const Activities& activities)
    {
        auto items = JsonValue::Array();
        for (const auto& activity : activities) {
            items.Append(ItemJson(activity));
        }
        return items;
    }

    std::string Document(const Activities& activities) const
    {
        if (mFormat == "ics") {
            return ActivityCalendar(Records(activities));
        }
        if (mFormat == "csv") {
            return ActivityCsv(Records(activities));
        }
        return Items(activities).Text() + "\n";
    }

    DayRangeArguments mDays;
    ProjectArgument mProject;
    std::string mFormat;
    OutputFile mOut;
};

}

std::unique_ptr<Command> MakeExportCommand()
{
    return std::make_unique<ExportCommand>();
}

}
