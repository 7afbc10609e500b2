#include "cli/ActivityList.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/ItemJson.h"
#include "cli/OpenProfile.h"
#include "cli/ProductFacts.h"
#include "cli/UsageError.h"
#include "host/system/HostClock.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <optional>

namespace tempodial {

namespace {

class ListCommand final : public Command
{
public:
    ListCommand()
        : Command({ "list", "Show the activities of a day or of several",
            "Shows the activities that start in the range, both days included, in order of\n"
            "start. Without a range it is today; where only one end is given, the other is\n"
            "today, or the same day when that comes out of order.\n"
            "\n"
            "  tempodial list\n"
            "  tempodial list --from 2006-10-02 --to 2006-10-06 --project Riverside\n"
            "  tempodial list --from yesterday --json" })
    {
    }

    void Declare(CLI::App& app) override
    {
        app.add_option("--from", mFrom, "First day: YYYY-MM-DD, today or yesterday")->option_text("DAY");
        app.add_option("--to", mTo, "Last day")->option_text("DAY");
        app.add_option(
               "--project", mProject, "Only activities of the project of exactly this name, such as \"No Project\"")
            ->option_text("NAME");
    }

    Reply Run(const Options& options) override
    {
        const auto days = Days(HostClock(options.now).Now());
        const auto profile = OpenProfile(options);
        const auto& formats = profile.Surroundings().formats;
        const auto id = profile.Registry()->Get(Hive::CurrentUser, ProductKey, WorkLogIdValue);
        const auto workLog = FindWorkLog(profile.Mailbox()->NameSpace(), id.ToText());
        std::vector<Ref<AppointmentItem>> activities;
        if (workLog) {
            activities = ActivitiesIn(workLog, formats, days, mProject);
        }
        Reply reply { .document = nlohmann::ordered_json::array() };
        if (options.json) {
            std::transform(activities.begin(), activities.end(), std::back_inserter(reply.document), ItemJson);
        } else {
            reply.text = ActivityTable(activities, formats, days);
            reply.summary = ActivityTotal(activities);
        }
        return reply;
    }

private:
    DayRange Days(Date now) const
    {
        const auto today = now.Day();
        DayRange days { today, today };
        if (mFrom) {
            days.first = ToDay("--from", *mFrom, now);
        }
        if (mTo) {
            days.last = ToDay("--to", *mTo, now);
        }
        if (!mFrom) {
            days.first = std::min(today, days.last);
        }
        if (!mTo) {
            days.last = std::max(today, days.first);
        }
        if (days.first > days.last) {
            throw UsageError("--from " + IsoDay(days.first) + " is later than --to " + IsoDay(days.last)
                + ": give the earlier day as --from");
        }
        return days;
    }

    std::optional<std::string> mFrom;
    std::optional<std::string> mTo;
    std::optional<std::string> mProject;
};

}

std::unique_ptr<Command> MakeListCommand()
{
    return std::make_unique<ListCommand>();
}

}
