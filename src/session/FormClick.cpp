#include "session/FormClick.h"

#include "session/Steps.h"

namespace tempodial {

namespace {

constexpr auto SetProjectFormClass = "SetProjectForm";
constexpr auto ProjectSettingsFormClass = "ProjectSettingsForm";

}

void ClickButton(const Profile& profile, const FormModel& form, ButtonModel& button)
{
    const auto definition = form.Definition();
    if (definition.className == SetProjectFormClass) {
        Steps(profile).Record(definition.title,
            [&] { profile.Mailbox()->ChoosingProjects(ProjectChoice::Person, [&] { button.Click(); }); });
    } else if (definition.className == ProjectSettingsFormClass) {
        Steps(profile).Record(definition.title, [&] { button.Click(); });
    } else {
        button.Click();
    }
}

}
