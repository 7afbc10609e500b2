#pragma once

#include "engine/projects/FoldedText.h"
#include "review/RuledProject.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// Tells why an activity belongs to a project: what each project's rules say of its subject and its people.
class RuleTrial
{
public:
    enum class Rule { None, Subject, People };

    /// What the rules of one project say.
    struct Result
    {
        const RuledProject* project = nullptr;
        bool matches = false;
        /// In which rule a term hit; that for people when both did and the subject is excluded.
        Rule rule = Rule::None;
        /// The term that hit, as typed.
        std::optional<std::string> term;
        /// The term that excludes the subject although its rule hit.
        std::optional<std::string> excludedBy;
    };

    /// Takes projects in the order in which they are tried.
    explicit RuleTrial(std::vector<RuledProject> projects)
        : mProjects(std::move(projects))
    {
    }

    /// The results of all projects in their order. The subject is that without a project.
    std::vector<Result> Try(const std::string& subject, const std::string& people) const;
    /// The first project whose rules match; null when none does.
    const RuledProject* First(const FoldedText& subject, const FoldedText& people) const;
    /// The project of a name, whatever the case of its letters; null when there is none.
    const RuledProject* Named(const std::string& name) const;
    const std::vector<RuledProject>& Projects() const { return mProjects; }

    /// What the rules of a project say.
    static Result TryOne(const RuledProject& project, const FoldedText& subject, const FoldedText& people);
    /// True when the rules of a project match.
    static bool IsMatch(const RuledProject& project, const FoldedText& subject, const FoldedText& people);

private:
    std::vector<RuledProject> mProjects;
};

}
