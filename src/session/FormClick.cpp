#include "session/FormClick.h"

#include "session/Steps.h"

namespace tempodial {

namespace {

constexpr auto SetProjectFormClass = "SetProjectForm";
constexpr auto ProjectSettingsFormClass = "ProjectSettingsForm";

}

void ClickAsStep(
    const Profile& profile, const std::string& className, const std::string& title, const std::function<void()>& click)
{
    if (className == SetProjectFormClass) {
        Steps(profile).Record(
            title, [&] { profile.Mailbox()->ChoosingProjects(ProjectChoice::Person, [&] { click(); }); });
    } else if (className == ProjectSettingsFormClass) {
        Steps(profile).Record(title, click);
    } else {
        click();
    }
}

}
