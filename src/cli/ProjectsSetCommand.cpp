#include "cli/ChangesReply.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/PeriodArguments.h"
#include "cli/PrecedenceWord.h"
#include "cli/ProjectNames.h"
#include "engine/core/ProjectFacts.h"
#include "review/ActivityReader.h"
#include "review/RuleTerms.h"
#include "session/OpenProfile.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <optional>

namespace tempodial {

namespace {

class ProjectsSetCommand final : public Command
{
public:
    ProjectsSetCommand()
        : Command({ "projects set", "Add a project or change one",
            "What isn't named stays as it is; a new project has no rules and medium\n"
            "precedence unless said. The terms of a subject rule stand between commas, or\n"
            "else semicolons; those of a people rule between semicolons. --add-subject and\n"
            "--remove-subject take one term each, and may be repeated.\n"
            "\n"
            "--preview changes nothing. It shows which past activities the project's rules\n"
            "would bring to it, as \"apply NAME\" does: those of the last seven days, or of\n"
            "the range that is given.\n"
            "\n"
            "  tempodial projects set Riverside --subject \"riverside, kick-off\"\n"
            "  tempodial projects set Riverside --add-subject proposal --preview last-week\n"
            "  tempodial projects set Riverside --people \"Ann Berger;Zoë Müller\" --precedence high\n"
            "  tempodial projects set Riverside --subject \"\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("NAME", mName, "The project");
        mPeriod.Declare(arguments);
        arguments.Optional("--subject RULE", mSubject, "Words and phrases of a subject that belong to the project");
        arguments.Optional("--not-subject RULE", mNotSubject, "Words and phrases of a subject that don't");
        arguments.Optional("--people RULE", mPeople, "People with whom the work is for the project");
        arguments.Optional(
            "--precedence PRECEDENCE", mPrecedence, "Which projects are tried first: high, medium or low");
        arguments.Repeated("--add-subject TERM", mAdded, "One more word or phrase of a subject");
        arguments.Repeated("--remove-subject TERM", mRemoved, "One that is to be taken away");
        arguments.Flag("--preview", mIsPreview, "Show what the rules would change, and change nothing");
    }

    Reply Run(const Options& options) override
    {
        RequireProjectName(mName);
        if (mPeriod.IsGiven() && !mIsPreview) {
            throw UsageError("a range of days goes with --preview: give that too, or leave the range out");
        }
        const auto span = mPeriod.Days(options, "-7d");
        const auto precedence = mPrecedence ? std::optional(PrecedenceOf("--precedence", *mPrecedence)) : std::nullopt;
        for (const auto& rule : { mSubject, mNotSubject, mPeople }) {
            if (rule) {
                KnownProject::RequireReadableRule(*rule);
            }
        }
        if (mIsPreview) {
            const auto profile = ReadProfile(options);
            if (auto known = KnownProject::Find(profile, mName)) {
                Change(*known, precedence);
                return Warned(Preview(profile, *known, span, options), *known);
            }
        }
        ConnectedRun run(options);
        auto& addIn = run.AddIn();
        auto project = KnownProject::Read(addIn, KnownProject::NameOrNew(addIn, mName));
        Change(project, precedence);
        if (mIsPreview) {
            if (const auto refusal = addIn.ValidateProject(project.name); !refusal.empty()) {
                throw CommandError(refusal);
            }
            return run.Concluded(Warned(Preview(run.Profile(), project, span, options), project));
        }
        return run.Concluded(Warned(Set(run, project), project));
    }

private:
    /// What is asked for of a project.
    void Change(KnownProject& project, const std::optional<std::string>& precedence) const
    {
        project.subject = SubjectRule(mSubject.value_or(project.subject));
        project.notSubject = mNotSubject.value_or(project.notSubject);
        project.people = mPeople.value_or(project.people);
        project.precedence = precedence.value_or(project.precedence);
    }

    /// A reply with what is to be said of the new rules.
    Reply Warned(Reply reply, const KnownProject& project) const
    {
        WarnOfSemicolons(project.subject, mSubject || !mAdded.empty() || !mRemoved.empty(), reply);
        WarnOfSemicolons(project.notSubject, mNotSubject.has_value(), reply);
        return reply;
    }

    /// A rule with the terms added and taken away.
    std::string SubjectRule(const std::string& rule) const
    {
        RuleTerms terms(rule);
        for (const auto& term : mRemoved) {
            if (!terms.Has(term)) {
                throw CommandError(
                    "the subject rule has no term " + InQuotes(term) + ": see \"tempodial projects\" for those it has");
            }
            if (!terms.Remove(term)) {
                throw CommandError("the subject rule couldn't be read without " + InQuotes(term)
                    + " as its other terms are: give the whole rule with --subject");
            }
        }
        for (const auto& term : mAdded) {
            KnownProject::RequireReadableRule(term);
            if (!terms.Add(term)) {
                throw UsageError("--add-subject can't be " + InQuotes(term)
                    + ": give one term that isn't blank, in quotes that are closed");
            }
        }
        return terms.Rule();
    }

    static Reply Set(ConnectedRun& run, const KnownProject& project)
    {
        auto& addIn = run.AddIn();
        std::string refusal;
        run.AsStep([&] {
            refusal = addIn.UpdateorAddProject(
                project.name, project.subject, project.notSubject, project.people, project.precedence, false);
        });
        if (!refusal.empty()) {
            throw CommandError(refusal);
        }
        Reply reply { .document = KnownProject::Read(addIn, project.name).ToJson() };
        reply.summary = "The project " + IsolatedLine(project.name) + " is kept.\n";
        return reply;
    }

    static Reply Preview(
        const Profile& profile, const KnownProject& project, const Period& span, const Options& options)
    {
        auto projects = RuledProject::ReadAll(profile);
        projects.erase(std::remove_if(projects.begin(), projects.end(),
                           [&project](const auto& known) { return known.name == project.name; }),
            projects.end());
        projects.push_back({ .name = project.name,
            .precedence = project.precedence,
            .subjectRule = project.subject,
            .notSubjectRule = project.notSubject,
            .peopleRule = project.people });
        RuledProject::Sort(projects);
        const auto preview
            = RulePreview::OfOne(RuleTrial(std::move(projects)), project.name, ActivitiesStartingIn(profile, span));
        TellDisputed(preview, options);
        return PreviewReply(preview);
    }

    /// Tells how a rule is read in which commas part the terms, so that semicolons belong to them, if it is a new one.
    static void WarnOfSemicolons(const std::string& rule, bool isNew, Reply& reply)
    {
        std::string terms;
        bool hasSemicolon = false;
        for (const auto& term : SubjectTerms(rule)) {
            hasSemicolon |= term.front() != '"' && term.find(';') != std::string::npos;
            terms += (terms.empty() ? "" : " | ") + IsolatedLine(term);
        }
        if (isNew && hasSemicolon) {
            reply.warnings.push_back("in the rule " + InQuotes(rule)
                + " commas part the terms, and semicolons belong to them: it is read as " + terms);
        }
    }

    std::string mName;
    PeriodArguments mPeriod;
    std::optional<std::string> mSubject;
    std::optional<std::string> mNotSubject;
    std::optional<std::string> mPeople;
    std::optional<std::string> mPrecedence;
    std::vector<std::string> mAdded;
    std::vector<std::string> mRemoved;
    bool mIsPreview = false;
};

}

std::unique_ptr<Command> MakeProjectsSetCommand()
{
    return std::make_unique<ProjectsSetCommand>();
}

}
