#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "terminal/TerminalText.h"

namespace tempodial {

namespace {

class ProjectsRemoveCommand final : public Command
{
public:
    ProjectsRemoveCommand()
        : Command({ "projects remove", "Remove a project from the list",
            "Activities that have the project keep it.\n"
            "\n"
            "  tempodial projects remove Riverside" })
    {
    }

    void Declare(ArgumentList& arguments) override { arguments.Required("NAME", mName, "The project"); }

    Reply Run(const Options& options) override
    {
        ConnectedRun run(options);
        const auto name = KnownProject::NameOf(run.AddIn(), mName);
        run.AsStep([&] { run.AddIn().DeleteProject(name); });
        Reply reply;
        reply.document.Set("removed", name);
        reply.summary = "The project " + IsolatedLine(name) + " is removed.\n";
        return run.Concluded(std::move(reply));
    }

private:
    std::string mName;
};

}

std::unique_ptr<Command> MakeProjectsRemoveCommand()
{
    return std::make_unique<ProjectsRemoveCommand>();
}

}
