#include "cli/Commands.h"
#include "cli/ConnectedRun.h"

namespace tempodial {

namespace {

class ProjectsMatchCommand final : public Command
{
public:
    ProjectsMatchCommand()
        : Command({ "projects match", "Show which project the rules give to a subject",
            "Prints the project's name, or No Project.\n"
            "\n"
            "  tempodial projects match \"Microsoft Word, \\\"Proposal Riverside.doc\\\"\"\n"
            "  tempodial projects match \"Lunch\" --people \"Ann Berger\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("SUBJECT", mSubject, "The subject of an activity, without a project in front");
        arguments.Optional("--people PEOPLE", mPeople, "The people of the activity, semicolons between");
    }

    Reply Run(const Options& options) override
    {
        ConnectedRun run(options);
        const auto project = run.AddIn().WhatProject(mSubject, mPeople);
        Reply reply;
        reply.document.Set("project", project);
        reply.text = project + "\n";
        return run.Concluded(std::move(reply));
    }

private:
    std::string mSubject;
    std::string mPeople;
};

}

std::unique_ptr<Command> MakeProjectsMatchCommand()
{
    return std::make_unique<ProjectsMatchCommand>();
}

}
