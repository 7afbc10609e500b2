#include "review/Activity.h"

#include "base/Text.h"
#include "engine/foundation/ActivitySubject.h"
#include "session/ProductFacts.h"

namespace tempodial {

const std::string& ProjectNameOf(const Activity& activity)
{
    static const std::string none = NoProject;
    return activity.project.empty() ? none : activity.project;
}

std::string RuledSubject(const Activity& activity)
{
    return ActivitySubject(activity.type, activity.description);
}

bool IsUnassigned(const Activity& activity)
{
    return EqualIgnoringCase(ProjectNameOf(activity), NoProject);
}

}
