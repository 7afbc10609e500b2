#include "session/WorkLogFolder.h"

#include "base/Failure.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"
#include "session/ProductFacts.h"

namespace tempodial {

namespace {

Ref<MAPIFolder> FindByID(const Ref<Folders>& folders, const std::string& entryID)
{
    for (std::int32_t i = 1; i <= folders->Count(); ++i) {
        auto folder = folders->Item(i);
        if (folder->EntryID() == entryID) {
            return folder;
        }
        if (auto below = FindByID(folder->Folders(), entryID)) {
            return below;
        }
    }
    return nullptr;
}

Ref<MAPIFolder> FindInCalendar(const Ref<NameSpace>& session)
{
    try {
        return session->GetDefaultFolder(DefaultFolder::Calendar)->Folders()->ItemNamed(ProductName);
    } catch (const Failure& failure) {
        if (failure.Is(Error::ObjectNotFound) || failure.Is(Error::ObjectNotSet)) {
            return nullptr;
        }
        throw;
    }
}

}

Ref<MAPIFolder> FindWorkLog(const Ref<NameSpace>& session, const std::string& entryID)
{
    auto found = entryID.empty() ? nullptr : FindByID(session->Folders(), entryID);
    return found ? found : FindInCalendar(session);
}

Ref<MAPIFolder> WorkLogOf(const Profile& profile)
{
    const auto id = profile.Registry()->Get(Hive::CurrentUser, ProductKey, WorkLogIdValue);
    return FindWorkLog(profile.Mailbox()->NameSpace(), id.ToText());
}

std::int32_t CountActivities(const Profile& profile)
{
    const auto workLog = WorkLogOf(profile);
    const auto own = "[MessageClass] = \"" + std::string(ActivityClass) + "\"";
    return workLog ? workLog->Items()->Restrict(own)->Count() : 0;
}

}
