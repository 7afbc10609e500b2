#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/Interruption.h"
#include "cli/KnownProject.h"
#include "cli/ProjectChanges.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"

namespace tempodial {

namespace {

class ApplyCommand final : public Command
{
public:
    ApplyCommand()
        : Command({ "apply", "Give a project to the past activities that its rules match",
            "Goes over today's activities and those of the days before. Those that the\n"
            "project's rules match get the project, also when they have another one\n"
            "already; activities that come to another project are counted. Ctrl-C stops\n"
            "it.\n"
            "\n"
            "  tempodial apply Riverside\n"
            "  tempodial apply Riverside --days 21" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("NAME", mName, "The project");
        arguments.Optional("--days N", mDays, "How many days, today being the last; default 7");
    }

    Reply Run(const Options& options) override
    {
        constexpr std::int32_t MostDays = 100'000;
        const auto days = ToCount("--days", mDays, 1, MostDays);
        const Interruption interruption;
        ConnectedRun run(options);
        const auto name = KnownProject::NameOf(run.AddIn(), mName);
        const auto today = run.Host().clock->Now().Day();
        const ProjectChanges changes(run.Profile(), { today.AddDays(1 - days), today });
        if (!Interruption::IsRequested()) {
            run.AsStep([&] { run.AddIn().ApplyProject(name, days); });
        }
        return run.ConcludedWithChanges(changes.Count());
    }

private:
    std::string mName;
    std::string mDays = std::to_string(ApplyBackDays);
};

}

std::unique_ptr<Command> MakeApplyCommand()
{
    return std::make_unique<ApplyCommand>();
}

}
