#include "cli/PersonsChoice.h"

#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"
#include "session/OpenProfile.h"

namespace tempodial {

void ChooseProject(const std::string& profile, Date moment, const std::string& project)
{
    const auto opened = OpenProfile({ .profile = profile, .locale = "en_US" });
    const auto activity = ActivityAt(opened, moment);
    const auto item = ItemNumbered(opened, activity.value().number);
    opened.Mailbox()->ChoosingProjects(ProjectChoice::Person, [&] {
        item->UserProperties()->Item("Project")->SetValue(project);
        item->SetMileage(project);
        item->Save();
    });
}

}
