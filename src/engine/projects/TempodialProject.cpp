#include "engine/projects/TempodialProject.h"

#include "base/Text.h"

#include <algorithm>

namespace tempodial {

TempodialProject::TempodialProject(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialProject::Initialize(const Ref<TempodialDebugLog>& log, const std::string& name,
    const std::string& subjectRule, const std::string& peopleRule, const std::string& notSubjectRule,
    const std::string& precedence)
{
    const auto attempt = Failing("P init error ", LineShape::TextColonStep);
    mTraceInfo = "TDProject";
    mLog = log;
    mName = name;
    mPrecedence = precedence;
    attempt.Say("Initialize revision 1 TempodialProject");
    attempt.Say("Project Init: " + name + " " + subjectRule + " " + peopleRule + " " + notSubjectRule);
    SetSubjectRule(subjectRule);
    SetPeopleRule(peopleRule);
    SetNotSubjectRule(notSubjectRule);
}

void TempodialProject::Terminate()
{
    mLog = nullptr;
    mStage.clear();
    mName.clear();
    mPrecedence.clear();
    mSubjectRule = {};
    mPeopleRule = {};
    mNotSubjectRule = {};
}

void TempodialProject::SetSubjectRule(const std::string& rule)
{
    mSubjectRule = ProjectRule::ForSubjects(rule);
}

void TempodialProject::SetPeopleRule(const std::string& rule)
{
    mPeopleRule = ProjectRule::ForPeople(rule);
}

void TempodialProject::SetNotSubjectRule(const std::string& rule)
{
    mNotSubjectRule = ProjectRule::ForSubjects(rule);
}

void TempodialProject::SetPrecedence(const Variant& precedence)
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { mPrecedence = precedence.ToText(); });
}

void TempodialProject::AppendSubjectRule(const std::string& rule)
{
    if (rule.empty() || mSubjectRule.HasTerm(rule)) {
        return;
    }
    const auto& present = mSubjectRule.Text();
    // kept: the new text alone chooses the separator, so a comma can turn up in a rule of semicolons
    SetSubjectRule(present.empty() ? rule : present + (IsSemiColonSeparator(rule) ? ";" : ",") + rule);
}

void TempodialProject::AppendPeopleRule(const std::string& rule)
{
    if (rule.empty() || mPeopleRule.HasTerm(rule)) {
        return;
    }
    const auto& present = mPeopleRule.Text();
    SetPeopleRule(present.empty() ? rule : present + ";" + rule);
}

bool TempodialProject::IsSemiColonSeparator(const std::string& rule) const
{
    return ProjectRule::IsSemiColonSeparator(rule);
}

bool TempodialProject::isSubjectMatch(const std::string& subject)
{
    return isFoldedSubjectMatch(FoldedText(subject));
}

bool TempodialProject::isPeopleMatch(const std::string& people)
{
    return isFoldedPeopleMatch(FoldedText(people));
}

bool TempodialProject::isFoldedSubjectMatch(const FoldedText& subject)
{
    const auto attempt = Failing("isSubjectMatch ", LineShape::TextColonStep);
    const bool match = attempt.Get([&] { return isMatch(subject, mSubjectRule); });
    const bool excluded
        = !mNotSubjectRule.MatchTerms().empty() && attempt.Get([&] { return isMatch(subject, mNotSubjectRule); });
    return match && !excluded;
}

bool TempodialProject::isFoldedPeopleMatch(const FoldedText& people)
{
    const auto attempt = Failing("isPeopleMatch ", LineShape::TextColonStep);
    return attempt.Get([&] { return isMatch(people, mPeopleRule); });
}

bool TempodialProject::isMatch(const FoldedText& text, const ProjectRule& rule)
{
    const auto attempt = Failing("isMatch ", LineShape::TextColonStep);
    // Only a lone quote can fail, so the step word waits until there is one.
    const char* step = "match thing";
    for (const auto& term : rule.MatchTerms()) {
        if (term.loneQuote) {
            mStage = step;
            // kept: its one quote has gone as the opening one, and taking the closing one off fails at each test
            attempt([] { Left("", -1); });
        }
        if (!term.quoted) {
            step = "iterate";
        }
        if (term.quoted ? term.IsIn(text) : isandMatch(text, term)) {
            return true;
        }
    }
    return false;
}

bool TempodialProject::isandMatch(const FoldedText& text, const ProjectRule::Term& term)
{
    if (!term.IsIn(text)) {
        return false;
    }
    Trace("unquoted match");
    return true;
}

}
