#include "cli/ActivityList.h"
#include "cli/Commands.h"
#include "cli/PeriodArguments.h"
#include "cli/ProjectArgument.h"
#include "session/OpenProfile.h"
#include "terminal/ItemJson.h"
#include "terminal/JsonListText.h"

namespace tempodial {

namespace {

class ListCommand final : public Command
{
public:
    ListCommand()
        : Command({ "list", "Show the activities of a day or of several",
            "Shows the activities that start in the range, both days included, in order of\n"
            "start.\n"
                + std::string(PeriodArguments::Help)
                + "\n"
                  "  tempodial list\n"
                  "  tempodial list --from 2006-10-02 --to 2006-10-06 --project Riverside\n"
                  "  tempodial list --ids\n"
                  "  tempodial list last-week --json" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        mProject.Declare(arguments);
        arguments.Flag("--ids", mIds, "Show the number of each activity, such as @12");
    }

    Reply Run(const Options& options) override
    {
        const auto days = mDays.Days(options);
        mProject.RequireUsable();
        const auto profile = ReadProfile(options);
        const auto activities = mProject.ActivitiesOf(profile, days);
        Reply reply;
        if (options.json) {
            JsonListText list;
            for (const auto& activity : activities) {
                list.Append(ItemJson(NumberOf(activity), activity));
            }
            reply.documentText = list.Take();
        } else {
            reply.text = ActivityTable(activities, profile.Surroundings().formats, days, options.screen.isTerminal,
                mIds ? Numbers::Shown : Numbers::Hidden);
            reply.summary = ActivityTotal(activities);
        }
        return reply;
    }

private:
    PeriodArguments mDays;
    ProjectArgument mProject;
    bool mIds = false;
};

}

std::unique_ptr<Command> MakeListCommand()
{
    return std::make_unique<ListCommand>();
}

}
