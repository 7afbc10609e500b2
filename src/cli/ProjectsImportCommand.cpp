#include "base/Failure.h"
#include "base/Text.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/PrecedenceWord.h"
#include "cli/ProjectNames.h"
#include "host/files/FileDescriptor.h"
#include "host/system/TomlRecords.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tempodial {

namespace {

class ProjectsImportCommand final : public Command
{
public:
    ProjectsImportCommand()
        : Command({ "projects import", "Read projects and their rules from a file",
            "The file is one of \"projects export\" (TOML). Projects that it names are added or\n"
            "changed; what isn't named stays as it is. When one of its records can't be used\n"
            "nothing is changed.\n"
            "\n"
            "  tempodial projects import projects.toml\n"
            "\n"
            "  [[project]]\n"
            "  name = \"Riverside\"\n"
            "  precedence = \"medium\"        high, medium or low\n"
            "  subject = \"riverside, kick-off\"\n"
            "  not-subject = \"\"\n"
            "  people = \"Ann Berger;Zoë Müller\"" })
    {
    }

    void Declare(ArgumentList& arguments) override { arguments.Required("FILE", mPath, "The file to read"); }

    Reply Run(const Options& options) override
    {
        const auto records = Records();
        ConnectedRun run(options);
        auto& addIn = run.AddIn();
        std::vector<KnownProject> projects;
        for (const auto& record : records) {
            projects.push_back(ProjectOf(record, addIn));
        }
        Reply reply { .document = JsonValue::Array() };
        // All of them reach the registry together or not at all.
        run.AsStep([&] {
            for (const auto& project : projects) {
                addIn.UpdateorAddProject(
                    project.name, project.subject, project.notSubject, project.people, project.precedence, false);
            }
        });
        for (const auto& project : projects) {
            reply.document.Append(KnownProject::Read(addIn, project.name).ToJson());
        }
        reply.summary
            = std::to_string(projects.size()) + (projects.size() == 1 ? " project is" : " projects are") + " kept.\n";
        return run.Concluded(std::move(reply));
    }

private:
    std::vector<TomlRecord> Records() const
    {
        auto records = ReadFile();
        for (std::size_t i = 0; i < records.size(); ++i) {
            RequireKnownNames(records[i]);
            const auto& name = NameIn(records[i]);
            const auto first = std::find_if(records.begin(), records.end(),
                [&](const auto& other) { return EqualIgnoringCase(NameIn(other), name); });
            if (&*first != &records[i]) {
                Refuse(records[i], "the project " + InQuotes(name) + " stands in the file a second time",
                    "leave one of them out");
            }
        }
        return records;
    }

    std::vector<TomlRecord> ReadFile() const
    {
        constexpr std::size_t LargestFile = std::size_t { 16 } << 20U;
        try {
            const FileDescriptor file(NativePath(mPath), Opening::Reading);
            return TomlRecord::ReadAll("project", file.ReadAll(LargestFile));
        } catch (const TomlRecordsError& error) {
            throw CommandError(mPath + ", " + error.what());
        } catch (const Failure& failure) {
            throw CommandError(mPath + " couldn't be read: " + failure.Description() + ": give the file of an export");
        }
    }

    /// Where a record stands, in front of a message.
    std::string Place(const TomlRecord& record) const { return mPath + ", line " + std::to_string(record.line) + ": "; }

    [[noreturn]] void Refuse(const TomlRecord& record, const std::string& reason, const std::string& advice) const
    {
        throw CommandError(Place(record) + reason + ": " + advice);
    }

    const std::string& NameIn(const TomlRecord& record) const
    {
        const auto found = record.texts.find("name");
        if (found == record.texts.end()) {
            Refuse(record, "the project has no name", "add a line such as name = \"Riverside\"");
        }
        return found->second;
    }

    void RequireKnownNames(const TomlRecord& record) const
    {
        const std::vector<std::string> known { "name", "precedence", "subject", "not-subject", "people" };
        for (const auto& [name, text] : record.texts) {
            if (std::find(known.begin(), known.end(), name) == known.end()) {
                Refuse(record, "a project has no " + InQuotes(name),
                    "give name, precedence, subject, not-subject or people");
            }
        }
    }

    /// The project of a record, with what it doesn't name as it is now.
    KnownProject ProjectOf(const TomlRecord& record, TempodialMain& addIn) const
    {
        try {
            const auto& given = NameIn(record);
            RequireProjectName(given);
            auto project = KnownProject::Read(addIn, KnownProject::NameOrNew(addIn, given));
            const auto refusal = addIn.ValidateProject(project.name);
            if (!refusal.empty() && !KnownProject::IsListed(addIn, project.name)) {
                throw CommandError(refusal + ": give another name");
            }
            for (const auto& [name, text] : { std::pair("subject", &project.subject),
                     std::pair("not-subject", &project.notSubject), std::pair("people", &project.people) }) {
                if (const auto rule = record.texts.find(name); rule != record.texts.end()) {
                    KnownProject::RequireReadableRule(rule->second);
                    *text = rule->second;
                }
            }
            if (const auto precedence = record.texts.find("precedence"); precedence != record.texts.end()) {
                project.precedence = PrecedenceOf("precedence", precedence->second);
            }
            return project;
        } catch (const UsageError& error) {
            throw CommandError(Place(record) + error.what());
        } catch (const CommandError& error) {
            throw CommandError(Place(record) + error.what());
        }
    }

    std::string mPath;
};

}

std::unique_ptr<Command> MakeProjectsImportCommand()
{
    return std::make_unique<ProjectsImportCommand>();
}

}
