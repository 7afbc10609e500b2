#include "cli/KnownProject.h"

#include "base/Text.h"
#include "cli/CommandError.h"

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

std::optional<std::string> Find(TempodialMain& addIn, const std::string& name)
{
    const auto names = Names(addIn);
    const auto found = std::find_if(
        names.begin(), names.end(), [&name](const auto& known) { return EqualIgnoringCase(known, name); });
    return found == names.end() ? std::nullopt : std::optional(*found);
}

}

KnownProject KnownProject::Read(TempodialMain& addIn, const std::string& name)
{
    return { name, addIn.GetProjectPrecedence(name), addIn.GetProjectSubRule(name), addIn.GetProjectNotSubRule(name),
        addIn.GetProjectPeopleRule(name) };
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
    const auto found = Find(addIn, name);
    if (!found) {
        throw CommandError("there is no project \"" + name + R"(": see "tempodial projects" for those there are)");
    }
    return *found;
}

std::string KnownProject::NameOrNew(TempodialMain& addIn, const std::string& name)
{
    return Find(addIn, name).value_or(name);
}

nlohmann::ordered_json KnownProject::ToJson() const
{
    return { { "name", name }, { "precedence", precedence }, { "subject", subject }, { "notSubject", notSubject },
        { "people", people } };
}

}
