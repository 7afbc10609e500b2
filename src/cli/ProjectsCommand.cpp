#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/PrecedenceWord.h"
#include "cli/ProjectStyle.h"
#include "cli/TextTable.h"

#include <utility>

namespace tempodial {

namespace {

class ProjectsCommand final : public Command
{
public:
    ProjectsCommand()
        : Command({ "projects", "Show the projects and their rules, or change them",
            "Without a command of its own it shows the projects in the order in which they\n"
            "are tried. A rule is a list of words or phrases, its terms, separated by commas,\n"
            "or else by semicolons; where it has both, only commas separate. An activity gets\n"
            "the first project that has a term of its subject rule in the activity's subject\n"
            "and none of its not-subject rule, or that names one of its people in the people\n"
            "rule.\n"
            "\n"
            "  tempodial projects\n"
            "  tempodial projects set Riverside --subject \"riverside, kick-off\" --precedence high\n"
            "  tempodial projects match \"Microsoft Word, \\\"Proposal Riverside.doc\\\"\"" })
    {
    }

    void Declare(ArgumentList&) override { }

    Reply Run(const Options& options) override
    {
        using enum TextTable::Side;
        ConnectedRun run(options);
        const auto projects = KnownProject::ReadAll(run.AddIn());
        Reply reply { .document = JsonValue::Array() };
        TextTable table({ Left, Left, Left, Left, Left });
        if (!projects.empty()) {
            table.AddHeading({ "PROJECT", "PRECEDENCE", "SUBJECT", "NOT SUBJECT", "PEOPLE" });
        }
        for (const auto& project : projects) {
            reply.document.Append(project.ToJson());
            table.AddStyled({ { project.name, ProjectStyle(project.name) }, { PrecedenceWord(project.precedence), {} },
                { project.subject, {} }, { project.notSubject, {} }, { project.people, {} } });
        }
        reply.text = std::move(table);
        reply.summary = projects.empty() ? "No projects.\n" : "";
        return run.Concluded(std::move(reply));
    }
};

}

std::unique_ptr<Command> MakeProjectsCommand()
{
    return std::make_unique<ProjectsCommand>();
}

}
