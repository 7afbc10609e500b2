#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/ProjectNames.h"
#include "engine/core/ProjectFacts.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

std::string PrecedenceNumber(const std::string& name)
{
    if (name == "high") {
        return "1";
    }
    if (name == "medium") {
        return "2";
    }
    if (name == "low") {
        return "3";
    }
    throw UsageError("--precedence can't be \"" + name + "\": give high, medium or low");
}

class ProjectsSetCommand final : public Command
{
public:
    ProjectsSetCommand()
        : Command({ "projects set", "Add a project or change one",
            "What isn't named stays as it is; a new project has no rules and medium\n"
            "precedence unless said. The terms of a subject rule stand between commas, or\n"
            "else semicolons; those of a people rule between semicolons.\n"
            "\n"
            "  tempodial projects set Riverside --subject \"riverside, kick-off\"\n"
            "  tempodial projects set Riverside --people \"Ann Berger;Zoë Müller\" --precedence high\n"
            "  tempodial projects set Riverside --subject \"\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("NAME", mName, "The project");
        arguments.Optional("--subject RULE", mSubject, "Words and phrases of a subject that belong to the project");
        arguments.Optional("--not-subject RULE", mNotSubject, "Words and phrases of a subject that don't");
        arguments.Optional("--people RULE", mPeople, "People with whom the work is for the project");
        arguments.Optional(
            "--precedence PRECEDENCE", mPrecedence, "Which projects are tried first: high, medium or low");
    }

    Reply Run(const Options& options) override
    {
        RequireProjectName(mName);
        const auto precedence = mPrecedence ? std::optional(PrecedenceNumber(*mPrecedence)) : std::nullopt;
        for (const auto& rule : { mSubject, mNotSubject, mPeople }) {
            if (rule) {
                KnownProject::RequireReadableRule(*rule);
            }
        }
        ConnectedRun run(options);
        auto& addIn = run.AddIn();
        const auto name = KnownProject::NameOrNew(addIn, mName);
        const auto former = KnownProject::Read(addIn, name);
        const auto refusal
            = addIn.UpdateorAddProject(name, mSubject.value_or(former.subject), mNotSubject.value_or(former.notSubject),
                mPeople.value_or(former.people), precedence.value_or(former.precedence), false);
        if (!refusal.empty()) {
            throw CommandError(refusal);
        }
        Reply reply { .document = KnownProject::Read(addIn, name).ToJson() };
        reply.summary = "The project " + name + " is kept.\n";
        for (const auto& rule : { mSubject, mNotSubject }) {
            if (rule) {
                WarnOfSemicolons(*rule, reply);
            }
        }
        return run.Concluded(std::move(reply));
    }

private:
    /// Tells how a rule is read in which commas part the terms, so that semicolons belong to them.
    static void WarnOfSemicolons(const std::string& rule, Reply& reply)
    {
        std::string terms;
        bool hasSemicolon = false;
        for (const auto& term : SubjectTerms(rule)) {
            hasSemicolon |= term.front() != '"' && term.find(';') != std::string::npos;
            terms += (terms.empty() ? "" : " | ") + term;
        }
        if (hasSemicolon) {
            reply.warnings.push_back("in the rule \"" + rule
                + "\" commas part the terms, and semicolons belong to them: it is read as " + terms);
        }
    }

    std::string mName;
    std::optional<std::string> mSubject;
    std::optional<std::string> mNotSubject;
    std::optional<std::string> mPeople;
    std::optional<std::string> mPrecedence;
};

}

std::unique_ptr<Command> MakeProjectsSetCommand()
{
    return std::make_unique<ProjectsSetCommand>();
}

}
