#include "cli/Commands.h"
#include "cli/Correction.h"
#include "cli/GivenProject.h"
#include "cli/ProjectNames.h"
#include "host/system/HostClock.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

class AddCommand final : public Command
{
public:
    AddCommand()
        : Command({ "add", "Add an activity that no tracker saw",
            "Adds an activity. Without --project the rules give it its project; a project\n"
            "that doesn't exist yet is made. A time HH:MM is of today.\n"
            "\n"
            "  tempodial add --from 13:00 --to 14:30 --project Riverside \\\n"
            "    --application Meeting --description \"site visit\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("--from TIME", mFrom, "When it began: YYYY-MM-DDTHH:MM or HH:MM");
        arguments.Required("--to TIME", mTo, "When it ended: YYYY-MM-DDTHH:MM or HH:MM");
        arguments.Optional("--project NAME", mProject, "Its project, or \"No Project\"");
        arguments.Optional("--application TEXT", mApplication, "The program it was done with");
        arguments.Optional("--description TEXT", mDescription, "What was done");
    }

    Reply Run(const Options& options) override
    {
        if (mProject) {
            RequireProjectName(*mProject);
        }
        const auto today = HostClock(options.now).Now().Day();
        const auto from = ToMomentOn(today, "--from", mFrom);
        const auto to = ToMomentOn(today, "--to", mTo);
        if (to <= from) {
            throw UsageError(
                "--to " + mTo + " isn't later than --from " + mFrom + ": give the earlier moment as --from");
        }
        Correction correction(options);
        const auto project = mProject ? std::optional(GivenProject(correction.AddIn(), *mProject)) : std::nullopt;
        const ActivityContent content { .project = project ? project->Name() : "",
            .application = mApplication,
            .description = mDescription,
            .start = from,
            .end = to };
        Ref<StoreItem> made;
        correction.Run().AsStep([&] {
            if (project) {
                project->Make();
            }
            correction.Choosing(project.has_value(), [&] { made = correction.Make(content); });
        });
        if (!made) {
            correction.Run().Complain("the activity couldn't be added: see \"tempodial trace\" for the reason");
        }
        Reply reply;
        Correction::WarnIfTooLong(content, reply);
        if (project) {
            project->NoteIfAdded(reply);
        }
        return correction.Concluded({ made }, std::move(reply));
    }

private:
    std::string mFrom;
    std::string mTo;
    std::optional<std::string> mProject;
    std::string mApplication;
    std::string mDescription;
};

}

std::unique_ptr<Command> MakeAddCommand()
{
    return std::make_unique<AddCommand>();
}

}
