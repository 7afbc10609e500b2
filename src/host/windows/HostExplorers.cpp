#include "host/windows/HostExplorers.h"

#include "base/Failure.h"

#include <algorithm>
#include <cstddef>

namespace tempodial {

Ref<Explorer> HostExplorers::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return mOpen[static_cast<std::size_t>(index) - 1];
}

Ref<HostExplorer> HostExplorers::Open(const Ref<MAPIFolder>& folder, bool barsReady)
{
    auto explorer = MakeRef<HostExplorer>(mNumbers + 1, mMailbox, folder, mOwnerCommands);
    ++mNumbers;
    if (barsReady) {
        explorer->MakeBarsReady();
    }
    mOpen.push_back(explorer);
    mWindowsEvents.Raise(&HostWindowsEvents<HostExplorer>::Opened, explorer);
    mEvents.Raise(&ExplorersEvents::NewExplorer, Ref<Explorer>(explorer));
    Activate(explorer);
    return explorer;
}

void HostExplorers::Activate(const Ref<HostExplorer>& explorer)
{
    if (std::find(mOpen.begin(), mOpen.end(), explorer) == mOpen.end()) {
        return;
    }
    // The reference may be one of those that are moved.
    const auto active = explorer; // NOLINT(performance-unnecessary-copy-initialization)
    std::erase(mByRecency, active);
    mByRecency.push_back(active);
    active->RaiseActivate();
}

void HostExplorers::Close(const Ref<HostExplorer>& explorer)
{
    // The reference may be one of those that are taken out.
    const auto closed = explorer; // NOLINT(performance-unnecessary-copy-initialization)
    if (TakeOut(closed)) {
        closed->RaiseClose();
        closed->MarkGone();
    }
}

void HostExplorers::Kill(const Ref<HostExplorer>& explorer)
{
    const auto killed = explorer; // NOLINT(performance-unnecessary-copy-initialization)
    if (TakeOut(killed)) {
        killed->MarkGone();
    }
}

Ref<HostExplorer> HostExplorers::Active() const
{
    return mByRecency.empty() ? nullptr : mByRecency.back();
}

bool HostExplorers::TakeOut(const Ref<HostExplorer>& explorer)
{
    std::erase(mByRecency, explorer);
    return std::erase(mOpen, explorer) > 0;
}

}
