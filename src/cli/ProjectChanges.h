#pragma once

#include "review/Activity.h"
#include "review/Period.h"
#include "review/ProjectMoves.h"
#include "session/Profile.h"

#include <cstddef>
#include <vector>

namespace tempodial {

/// Counts the activities of some days that come to another project while this lives.
class ProjectChanges
{
public:
    /// Notes the projects that the activities have; the profile must live as long as this. Fails as the store does.
    ProjectChanges(const Profile& profile, const Period& days);

    /// The activities whose project is now another. Fails as the store does.
    std::size_t Count() const { return static_cast<std::size_t>(Moves().Activities()); }
    /// The same, counted by the projects. Fails as the store does.
    ProjectMoves Moves() const;

private:
    const Profile& mProfile;
    Period mDays;
    std::vector<Activity> mFormer;
};

}
