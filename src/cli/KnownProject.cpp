#include "cli/KnownProject.h"

#include "base/Text.h"
#include "cli/CommandError.h"
#include "cli/ProjectNames.h"
#include "review/RuledProject.h"
#include "session/ProductFacts.h"
#include "terminal/TerminalText.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tempodial {

namespace {

std::vector<std::string> Names(TempodialMain& addIn)
{
    std::vector<std::string> names;
    // The list can't be empty, so the special entry is asked for too, and left out again.
    addIn.GetProjects(names, false, true, false);
    if (!names.empty()) {
        names.pop_back();
    }
    return names;
}

std::optional<std::string> NameIn(TempodialMain& addIn, const std::string& name)
{
    const auto names = Names(addIn);
    const auto found = std::find_if(
        names.begin(), names.end(), [&name](const auto& known) { return EqualIgnoringCase(known, name); });
    return found == names.end() ? std::nullopt : std::optional(*found);
}

/// Fails for characters that a list of projects, being XML, doesn't give back as they are.
void RequireReadable(const std::string& text, const std::string& what)
{
    const bool hasControl = std::any_of(text.begin(), text.end(), [](char character) {
        return static_cast<unsigned char>(character) < ' ' && character != '\t' && character != '\n';
    });
    if (hasControl || text.find("\uFFFE") != std::string::npos || text.find("\uFFFF") != std::string::npos) {
        throw CommandError(what + " can't hold control characters, since the list of projects couldn't be read back: "
            + "leave them out of " + InQuotes(text));
    }
}

}

KnownProject KnownProject::Read(TempodialMain& addIn, const std::string& name)
{
    return { name, addIn.GetProjectPrecedence(name), addIn.GetProjectSubRule(name), addIn.GetProjectNotSubRule(name),
        addIn.GetProjectPeopleRule(name) };
}

std::optional<KnownProject> KnownProject::Find(const Profile& profile, const std::string& name)
{
    for (auto& project : RuledProject::ReadAll(profile)) {
        if (EqualIgnoringCase(project.name, name)) {
            return KnownProject { project.name, project.precedence, project.subjectRule, project.notSubjectRule,
                project.peopleRule };
        }
    }
    return std::nullopt;
}

std::vector<KnownProject> KnownProject::ReadAll(TempodialMain& addIn)
{
    std::vector<KnownProject> projects;
    const auto names = Names(addIn);
    std::transform(names.begin(), names.end(), std::back_inserter(projects),
        [&addIn](const auto& name) { return Read(addIn, name); });
    return projects;
}

std::string KnownProject::NameOf(TempodialMain& addIn, const std::string& name)
{
    const auto found = NameIn(addIn, name);
    if (!found) {
        throw UnknownProject(name, Names(addIn));
    }
    return *found;
}

bool KnownProject::IsListed(TempodialMain& addIn, const std::string& name)
{
    return NameIn(addIn, name).has_value();
}

std::string KnownProject::NameOrNew(TempodialMain& addIn, const std::string& name)
{
    if (const auto known = NameIn(addIn, name)) {
        return *known;
    }
    if (IsNoProject(name)) {
        return NoProject;
    }
    RequireReadable(name, "a name");
    return name;
}

void KnownProject::RequireReadableRule(const std::string& rule)
{
    if (rule.find('|') != std::string::npos) {
        throw CommandError(
            R"(a rule can't hold "|", since the list of projects couldn't be read back: leave it out of )"
            + InQuotes(rule));
    }
    RequireReadable(rule, "a rule");
}

JsonValue KnownProject::ToJson() const
{
    return { { "name", name }, { "precedence", precedence }, { "subject", subject }, { "notSubject", notSubject },
        { "people", people } };
}

}
