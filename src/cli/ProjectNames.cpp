#include "cli/ProjectNames.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "engine/core/ProjectFacts.h"
#include "review/ActivityReader.h"
#include "session/ProductFacts.h"
#include "terminal/NearestName.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string_view>

namespace tempodial {

namespace {

bool IsControl(char32_t character)
{
    constexpr char32_t FirstOfTheSecondSet = 0x7F;
    constexpr char32_t BehindTheSecondSet = 0xA0;
    return character < U' ' || (character >= FirstOfTheSecondSet && character < BehindTheSecondSet);
}

bool IsBlankCharacter(char32_t character)
{
    constexpr std::u32string_view Blanks = U" \u00A0\u2007\u202F\u3000";
    return Blanks.find(character) != std::u32string_view::npos;
}

/// The projects that the profile's activities have.
std::set<std::string> ProjectsOfActivities(const Profile& profile)
{
    std::set<std::string> projects;
    EachStartingIn(profile, Period::Always())([&](const Activity& activity) { projects.insert(activity.project); });
    return projects;
}

bool Has(const std::vector<std::string>& names, const std::string& name)
{
    return std::any_of(
        names.begin(), names.end(), [&name](const auto& known) { return EqualIgnoringCase(known, name); });
}

}

bool IsNoProject(const std::string& name)
{
    return EqualIgnoringCase(name, NoProject);
}

void RequireProjectName(const std::string& name)
{
    bool isBlank = true;
    for (std::size_t i = 0; i < name.size();) {
        const auto character = DecodeUtf8(name, i);
        if (IsControl(character.code)) {
            throw UsageError(
                "the name of a project can't hold control characters: leave them out of " + InQuotes(name));
        }
        isBlank = isBlank && IsBlankCharacter(character.code);
        i += character.size;
    }
    if (isBlank) {
        throw UsageError("the name of a project can't be blank: give the name of one");
    }
}

CommandError UnknownProject(const std::string& name, const std::vector<std::string>& known)
{
    return CommandError("there is no project " + InQuotes(name)
        + NearestAdvice(name, known, R"(see "tempodial projects" for those there are)"));
}

void RequireKnownProject(const Profile& profile, const std::string& name)
{
    const auto list = profile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectListValue());
    auto names = ListedProjects(list.ToText());
    if (IsNoProject(name) || Has(names, name)) {
        return;
    }
    const auto others = ProjectsOfActivities(profile);
    names.insert(names.end(), others.begin(), others.end());
    names.emplace_back(NoProject);
    if (!Has(names, name)) {
        throw UnknownProject(name, names);
    }
}

}
