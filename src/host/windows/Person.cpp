#include "host/windows/Person.h"

#include "base/Failure.h"
#include "host/store/SavedTogether.h"

namespace tempodial {

Ref<StoreItem> Person::Create(const Ref<MAPIFolder>& folder, ItemData data) const
{
    auto item = mMailbox->NewItem(folder, std::move(data));
    item->SaveAsPerson();
    return item;
}

bool Person::Reschedule(const Ref<StoreItem>& item, Date start, Date end) const
{
    if (end < start) {
        throw Failure(Error::InvalidCall, "An item can't end before it starts");
    }
    const auto startBefore = item->Start();
    const auto endBefore = item->End();
    const auto set = [&](Date newStart, Date newEnd) {
        item->SetStart(newStart);
        item->SetEnd(newEnd);
    };
    set(start, end);
    try {
        if (item->SaveAsPerson()) {
            return true;
        }
    } catch (...) {
        set(startBefore, endBefore);
        throw;
    }
    set(startBefore, endBefore);
    return false;
}

void Person::Delete(const Ref<StoreItem>& item) const
{
    item->Delete();
    mMailbox->CommitHeld();
}

void Person::Together(const std::function<void()>& work) const
{
    SavedTogether(mMailbox, work);
}

}
