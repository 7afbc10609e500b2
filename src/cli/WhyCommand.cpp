#include "cli/ActivityArgument.h"
#include "cli/Commands.h"
#include "cli/PrecedenceWord.h"
#include "cli/TextTable.h"
#include "host/system/HostClock.h"
#include "review/RuleTrial.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

/// The word for a rule, empty for none.
std::string RuleName(RuleTrial::Rule rule)
{
    switch (rule) {
    case RuleTrial::Rule::Subject:
        return "subject";
    case RuleTrial::Rule::People:
        return "people";
    default:
        return "";
    }
}

JsonValue OrNull(const std::optional<std::string>& text)
{
    return text ? JsonValue(*text) : JsonValue();
}

class WhyCommand final : public Command
{
public:
    WhyCommand()
        : Command({ "why", "Show why an activity has its project",
            "Shows the project that an activity has, the one that the rules give, and what\n"
            "each project's rules say of it, in the order in which they are tried. The first\n"
            "that matches is the one that the rules give.\n"
            "\n"
            "The activity is named by its number, which \"list --ids\" shows, or by a moment\n"
            "within it, YYYY-MM-DDTHH:MM, or HH:MM today. With --subject the rules are\n"
            "tried on any text.\n"
            "\n"
            "  tempodial why @12\n"
            "  tempodial why 10:30\n"
            "  tempodial why --subject \"Microsoft Word, Proposal Riverside.doc\" --people \"Ann Berger\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("@N", mActivity, "The activity, by its number or by a moment within it");
        arguments.Optional("--subject TEXT", mSubject, "A subject to try the rules on, without a project in front");
        arguments.Optional("--people PEOPLE", mPeople, "The people that go with it, semicolons between");
    }

    Reply Run(const Options& options) override
    {
        if (mActivity.has_value() == mSubject.has_value()) {
            throw UsageError(mActivity ? "an activity stands beside --subject: leave one of them out"
                                       : "nothing is asked for: give @N, a moment, or --subject");
        }
        if (mPeople && !mSubject) {
            throw UsageError("--people has no --subject: give one, or leave it out");
        }
        const auto argument
            = mActivity ? std::optional(ActivityArgument(*mActivity, HostClock(options.now).Now())) : std::nullopt;
        const auto profile = ReadProfile(options);
        Asked asked { .subject = mSubject.value_or(""), .people = mPeople.value_or("") };
        if (argument) {
            const auto activity = argument->Find(profile);
            asked = { RuledSubject(activity), activity.people, activity };
        }
        const RuleTrial trial(RuledProject::ReadAll(profile));
        const auto* first = trial.First(FoldedText(asked.subject), FoldedText(asked.people));
        const auto byRules = first == nullptr ? std::string(NoProject) : first->name;
        const auto results = trial.Try(asked.subject, asked.people);
        Reply reply;
        if (options.json) {
            reply.document = Document(asked.activity, byRules, results);
        } else {
            reply.text = Text(asked, byRules);
            if (!results.empty()) {
                reply.text += "\n";
                reply.text += Table(results);
            }
        }
        return reply;
    }

private:
    /// What the rules are tried on.
    struct Asked
    {
        std::string subject;
        std::string people;
        /// The activity that has them; nothing when they were given.
        std::optional<Activity> activity;
    };

    static JsonValue Document(const std::optional<Activity>& activity, const std::string& byRules,
        const std::vector<RuleTrial::Result>& results)
    {
        auto tried = JsonValue::Array();
        for (const auto& result : results) {
            const auto rule = RuleName(result.rule);
            tried.Append({ { "project", result.project->name }, { "precedence", result.project->precedence },
                { "matches", result.matches }, { "rule", rule.empty() ? JsonValue() : JsonValue(rule) },
                { "term", OrNull(result.term) }, { "excludedBy", OrNull(result.excludedBy) } });
        }
        JsonValue document { { "id", nullptr }, { "stored", nullptr }, { "byRules", byRules }, { "byHand", false },
            { "tried", std::move(tried) } };
        if (activity) {
            document.Set("id", activity->number);
            document.Set("stored", ProjectNameOf(*activity));
            document.Set("byHand", activity->isProjectByHand);
        }
        return document;
    }

    static std::string Text(const Asked& asked, const std::string& byRules)
    {
        auto text = IsolatedLine(asked.subject) + "\n";
        if (!asked.people.empty()) {
            text += "With: " + IsolatedLine(asked.people) + "\n";
        }
        if (asked.activity) {
            const auto& activity = *asked.activity;
            text += "@" + std::to_string(activity.number) + ", " + IsoDay(activity.start) + " "
                + activity.start.HourMinute() + "–" + activity.end.HourMinute() + "\n" + "It has: "
                + IsolatedLine(ProjectNameOf(activity)) + (activity.isProjectByHand ? ", set by hand\n" : "\n");
        }
        return text + "The rules give: " + IsolatedLine(byRules) + "\n";
    }

    static TextTable Table(const std::vector<RuleTrial::Result>& results)
    {
        using enum TextTable::Side;
        TextTable table({ Left, Left, Left, Left, Left, Left });
        table.AddHeading({ "PROJECT", "PRECEDENCE", "MATCHES", "RULE", "TERM", "EXCLUDED BY" });
        for (const auto& result : results) {
            table.Add({ result.project->name, PrecedenceWord(result.project->precedence), result.matches ? "yes" : "no",
                RuleName(result.rule), result.term.value_or(""), result.excludedBy.value_or("") });
        }
        return table;
    }

    std::optional<std::string> mActivity;
    std::optional<std::string> mSubject;
    std::optional<std::string> mPeople;
};

}

std::unique_ptr<Command> MakeWhyCommand()
{
    return std::make_unique<WhyCommand>();
}

}
