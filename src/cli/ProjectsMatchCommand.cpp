#include "cli/Commands.h"
#include "cli/ConnectedRun.h"

#include <CLI/CLI.hpp>

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

    void Declare(CLI::App& app) override
    {
        app.add_option("SUBJECT", mSubject, "The subject of an activity, without a project in front")->required();
        app.add_option("--people", mPeople, "The people of the activity, semicolons between")->option_text("PEOPLE");
    }

    Reply Run(const Options& options) override
    {
        ConnectedRun run(options);
        const auto project = run.AddIn().WhatProject(mSubject, mPeople);
        Reply reply;
        reply.document["project"] = project;
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
