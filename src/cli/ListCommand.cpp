#include "cli/ActivityList.h"
#include "cli/Commands.h"
#include "cli/DayRangeArguments.h"
#include "host/system/HostClock.h"
#include "session/OpenProfile.h"
#include "terminal/ItemJson.h"

#include <optional>

namespace tempodial {

namespace {

class ListCommand final : public Command
{
public:
    ListCommand()
        : Command({ "list", "Show the activities of a day or of several",
            "Shows the activities that start in the range, both days included, in order of\n"
            "start.\n"
                + std::string(DayRangeArguments::Help)
                + "\n"
                  "  tempodial list\n"
                  "  tempodial list --from 2006-10-02 --to 2006-10-06 --project Riverside\n"
                  "  tempodial list --from yesterday --json" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        arguments.Optional(
            "--project NAME", mProject, "Only activities of the project of exactly this name, such as \"No Project\"");
    }

    Reply Run(const Options& options) override
    {
        const auto days = mDays.Days(HostClock(options.now).Now());
        const auto profile = OpenProfile(options);
        const auto activities = ActivitiesOf(profile, days, mProject);
        Reply reply { .document = JsonValue::Array() };
        if (options.json) {
            for (const auto& activity : activities) {
                reply.document.Append(ItemJson(activity));
            }
        } else {
            reply.text = ActivityTable(activities, profile.Surroundings().formats, days);
            reply.summary = ActivityTotal(activities);
        }
        return reply;
    }

private:
    DayRangeArguments mDays;
    std::optional<std::string> mProject;
};

}

std::unique_ptr<Command> MakeListCommand()
{
    return std::make_unique<ListCommand>();
}

}
