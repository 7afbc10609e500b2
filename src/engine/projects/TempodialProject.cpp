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
    attempt([&] { Trace("Initialize revision 1 TempodialProject"); });
    attempt([&] { Trace("Project Init: " + name + " " + subjectRule + " " + peopleRule + " " + notSubjectRule); });
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
    return isFoldedSubjectMatch(Fold(subject));
}

bool TempodialProject::isPeopleMatch(const std::string& people)
{
    return isFoldedPeopleMatch(Fold(people));
}

bool TempodialProject::isFoldedSubjectMatch(std::string_view foldedSubject)
{
    const auto attempt = Failing("isSubjectMatch ", LineShape::TextColonStep);
    mStage = "match sub";
    const bool match = attempt.Get([&] { return isMatch(foldedSubject, mSubjectRule); });
    const bool excluded = attempt.Get([&] { return isMatch(foldedSubject, mNotSubjectRule); });
    return match && !excluded;
}

bool TempodialProject::isFoldedPeopleMatch(std::string_view foldedPeople)
{
    const auto attempt = Failing("isPeopleMatch ", LineShape::TextColonStep);
    mStage = "match peop";
    return attempt.Get([&] { return isMatch(foldedPeople, mPeopleRule); });
}

bool TempodialProject::isMatch(std::string_view foldedText, const ProjectRule& rule)
{
    const auto attempt = Failing("isMatch ", LineShape::TextColonStep);
    mStage = "match thing";
    for (const auto& term : rule.MatchTerms()) {
        if (term.loneQuote) {
            // kept: its one quote has gone as the opening one, and taking the closing one off fails at each test
            attempt([] { Left("", -1); });
        }
        const bool hit = term.quoted ? !foldedText.empty() && foldedText.find(term.parts.front()) != std::string::npos
                                     : isandMatch(foldedText, term);
        if (hit) {
            return true;
        }
    }
    return false;
}

bool TempodialProject::isandMatch(std::string_view foldedText, const ProjectRule::Term& term)
{
    mStage = "iterate";
    for (const auto& word : term.parts) {
        if (foldedText.find(word) == std::string_view::npos) {
            return false;
        }
    }
    Trace("unquoted match");
    return true;
}

}
