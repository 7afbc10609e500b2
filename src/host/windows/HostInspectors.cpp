#include "host/windows/HostInspectors.h"

#include "base/Failure.h"

#include <algorithm>
#include <cstddef>

namespace tempodial {

Ref<Inspector> HostInspectors::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return mOpen[static_cast<std::size_t>(index) - 1];
}

Ref<HostInspector> HostInspectors::Open(const Ref<StoreItem>& item)
{
    // Asking for the class fails for nothing and for an item that is gone.
    item->Class();
    const auto self = shared_from_this();
    auto inspector = Add(item);
    if (inspector->IsGone()) {
        return nullptr;
    }
    const bool agreed = item->RaiseOpen();
    if (!agreed && !inspector->IsGone()) {
        // It was never on the screen, so nobody is told that it goes.
        Remove(inspector);
        inspector->MarkGone();
    }
    return PutOnScreen(inspector);
}

Ref<HostInspector> HostInspectors::Open(const Ref<HostMail>& mail)
{
    const auto self = shared_from_this();
    return PutOnScreen(Add(mail));
}

void HostInspectors::Activate(const Ref<HostInspector>& inspector)
{
    if (std::find(mOpen.begin(), mOpen.end(), inspector) == mOpen.end()) {
        return;
    }
    // The reference may be one of those that are moved.
    const auto active = inspector; // NOLINT(performance-unnecessary-copy-initialization)
    std::erase(mByRecency, active);
    mByRecency.push_back(active);
    active->RaiseBroughtToFront();
}

void HostInspectors::TakeAway(const Ref<HostInspector>& inspector)
{
    const auto gone = inspector; // NOLINT(performance-unnecessary-copy-initialization)
    if (Remove(gone)) {
        gone->RaiseClose();
        gone->MarkGone();
    }
}

Ref<HostInspector> HostInspectors::Active() const
{
    return mByRecency.empty() ? nullptr : mByRecency.back();
}

Ref<HostInspector> HostInspectors::Showing(const Ref<OutlookItem>& item) const
{
    const auto found = std::find_if(mOpen.begin(), mOpen.end(), [&](const auto& inspector) {
        return Ref<OutlookItem>(inspector->ShownItem()) == item || Ref<OutlookItem>(inspector->ShownMail()) == item;
    });
    return found == mOpen.end() ? nullptr : *found;
}

bool HostInspectors::Remove(const Ref<HostInspector>& inspector)
{
    std::erase(mByRecency, inspector);
    return std::erase(mOpen, inspector) > 0;
}

Ref<HostInspector> HostInspectors::Add(const Ref<OutlookItem>& item)
{
    auto inspector = MakeRef<HostInspector>(++mNumbers, mMailbox, item);
    inspector->Belong(weak_from_this());
    mOpen.push_back(inspector);
    mEvents.Raise(&InspectorsEvents::NewInspector, Ref<Inspector>(inspector));
    return inspector;
}

Ref<HostInspector> HostInspectors::PutOnScreen(const Ref<HostInspector>& inspector)
{
    if (!inspector->IsGone()) {
        mWindowsEvents.Raise(&HostWindowsEvents<HostInspector>::Opened, inspector);
        Activate(inspector);
    }
    return inspector->IsGone() ? nullptr : inspector;
}

}
