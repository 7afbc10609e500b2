#pragma once

#include "engine/core/TempodialMain.h"
#include "session/Profile.h"
#include "terminal/JsonValue.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// A project as the add-in keeps it.
struct KnownProject
{
    std::string name;
    /// "1", "2" or "3".
    std::string precedence;
    std::string subject;
    std::string notSubject;
    std::string people;

    /// The project of that name.
    static KnownProject Read(TempodialMain& addIn, const std::string& name);
    /// The project of that name in a profile's list, whatever the case of the letters given; nothing when there is
    /// none.
    static std::optional<KnownProject> Find(const Profile& profile, const std::string& name);
    /// All projects in the order in which they are tried.
    static std::vector<KnownProject> ReadAll(TempodialMain& addIn);
    /// The name of a project as it is kept, whatever the case of the letters given; fails with a `CommandError` when
    /// there is no such project.
    static std::string NameOf(TempodialMain& addIn, const std::string& name);
    /// True when there is a project of that name, whatever the case of the letters given.
    static bool IsListed(TempodialMain& addIn, const std::string& name);
    /// The name of a project as it is kept, "No Project" for that in any case, or the name as it was given when there
    /// is no such project; fails with a `CommandError` when a project of that name couldn't be read back.
    static std::string NameOrNew(TempodialMain& addIn, const std::string& name);
    /// Fails with a `CommandError` for a rule with which the list of projects couldn't be read back.
    static void RequireReadableRule(const std::string& rule);

    JsonValue ToJson() const;
};

}
