#pragma once

#include "review/Period.h"
#include "session/Profile.h"

#include <cstddef>
#include <string>
#include <unordered_map>

namespace tempodial {

/// Counts the activities of some days that come to another project while this lives.
class ProjectChanges
{
public:
    /// Notes the projects that the activities have; the profile must live as long as this. Fails as the store does.
    ProjectChanges(const Profile& profile, const Period& days);

    /// The activities whose project is now another. Fails as the store does.
    std::size_t Count() const;

private:
    /// The projects of the activities, by the activities' identities.
    std::unordered_map<std::string, std::string> Projects() const;

    const Profile& mProfile;
    Period mDays;
    std::unordered_map<std::string, std::string> mFormer;
};

}
