#pragma once

#include "base/Variant.h"
#include "engine/foundation/TracedObject.h"
#include "engine/projects/FoldedText.h"
#include "engine/projects/ProjectRule.h"

#include <string>

namespace tempodial {

/// One project: its name, its precedence and the rules that tell which activities belong to it.
class TempodialProject final : public TracedObject
{
public:
    explicit TempodialProject(Ref<const Platform> platform);

    /// Takes the log, the name, which never changes, the rules and the precedence.
    void Initialize(const Ref<TempodialDebugLog>& log, const std::string& name, const std::string& subjectRule,
        const std::string& peopleRule, const std::string& notSubjectRule, const std::string& precedence);
    /// Lets go of the log and all texts.
    void Terminate();

    void SetSubjectRule(const std::string& rule);
    void SetPeopleRule(const std::string& rule);
    void SetNotSubjectRule(const std::string& rule);
    /// Takes the precedence in its text form; a value without one changes nothing.
    void SetPrecedence(const Variant& precedence);
    /// Adds a term unless a present one equals it exactly.
    void AppendSubjectRule(const std::string& rule);
    /// Adds a name unless a present one equals it exactly.
    void AppendPeopleRule(const std::string& rule);

    const std::string& GetSubjectRule() const { return mSubjectRule.Text(); }
    const std::string& GetPeopleRule() const { return mPeopleRule.Text(); }
    const std::string& GetNotSubjectRule() const { return mNotSubjectRule.Text(); }
    /// "1", "2" or "3", or what else it was given.
    const std::string& GetPrecedence() const { return mPrecedence; }
    const std::string& GetName() const { return mName; }
    /// True when the terms of that rule text stand between semicolons.
    bool IsSemiColonSeparator(const std::string& rule) const;

    /// True when a subject meets a subject term and no not-subject term.
    bool isSubjectMatch(const std::string& subject);
    /// True when a list of people meets a people term.
    bool isPeopleMatch(const std::string& people);
    /// `isSubjectMatch` for a subject that is ready for searches.
    bool isFoldedSubjectMatch(const FoldedText& subject);
    /// `isPeopleMatch` for people that are ready for searches.
    bool isFoldedPeopleMatch(const FoldedText& people);

private:
    bool isMatch(const FoldedText& text, const ProjectRule& rule);
    bool isandMatch(const FoldedText& text, const ProjectRule::Term& term);

    ProjectRule mSubjectRule;
    ProjectRule mPeopleRule;
    ProjectRule mNotSubjectRule;
    std::string mName;
    std::string mPrecedence;
};

}
