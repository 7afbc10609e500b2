#include "review/Activity.h"

#include "base/Text.h"
#include "session/ProductFacts.h"

namespace tempodial {

const std::string& ProjectNameOf(const Activity& activity)
{
    static const std::string none = NoProject;
    return activity.project.empty() ? none : activity.project;
}

bool IsUnassigned(const Activity& activity)
{
    return EqualIgnoringCase(ProjectNameOf(activity), NoProject);
}

}
