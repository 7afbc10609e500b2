#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/OutputFile.h"
#include "cli/PrecedenceWord.h"
#include "host/system/TomlRecords.h"

namespace tempodial {

namespace {

class ProjectsExportCommand final : public Command
{
public:
    ProjectsExportCommand()
        : Command({ "projects export", "Write the projects and their rules into a file",
            "The file (TOML) can be read and edited, and \"projects import\" reads it again,\n"
            "also on another computer. Without FILE it is printed.\n"
            "\n"
            "  tempodial projects export projects.toml" })
    {
    }

    void Declare(ArgumentList& arguments) override { mOut.DeclareAs(arguments, "FILE", "The file to write"); }

    Reply Run(const Options& options) override
    {
        const bool isFile = mOut.IsNamed();
        ConnectedRun run(options);
        Reply reply { .document = JsonValue::Array() };
        std::string text = "# Projects of Tempodial, in the order in which they are tried.\n";
        for (const auto& project : KnownProject::ReadAll(run.AddIn())) {
            reply.document.Append(project.ToJson());
            text += TomlRecord::Text("project",
                { { "name", project.name }, { "precedence", PrecedenceWord(project.precedence) },
                    { "subject", project.subject }, { "not-subject", project.notSubject },
                    { "people", project.people } });
        }
        if (isFile) {
            mOut.Write(std::move(text), reply);
        } else {
            reply.content = std::move(text);
        }
        return run.Concluded(std::move(reply));
    }

private:
    OutputFile mOut;
};

}

std::unique_ptr<Command> MakeProjectsExportCommand()
{
    return std::make_unique<ProjectsExportCommand>();
}

}
