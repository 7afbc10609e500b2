#pragma once

#include "platform/objectmodel/AppointmentItem.h"
#include "review/Period.h"
#include "session/Profile.h"
#include "terminal/ArgumentList.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The argument --project of a command that shows activities: only those of one project.
class ProjectArgument
{
public:
    /// Adds it to a command; it is kept here as it is parsed.
    void Declare(ArgumentList& arguments);
    /// Fails with a `UsageError` for a name that no project may have.
    void RequireUsable() const;
    /// The activities of the profile that start in the range, in order of start. Fails with a `CommandError` when there
    /// is no such project, and as the store does.
    std::vector<Ref<AppointmentItem>> ActivitiesOf(const Profile& profile, const Period& days) const;

private:
    std::optional<std::string> mName;
};

}
