#include "host/windows/HostCommandBarControl.h"

#include "host/windows/HostCommandBar.h"

#include <utility>

namespace tempodial {

HostCommandBarControl::HostCommandBarControl(State state)
    : mState(std::move(state))
{
}

const HostCommandBarControl::State& HostCommandBarControl::Now() const
{
    if (mGone) {
        throw Failure(Error::ObjectNotFound);
    }
    return mState;
}

void HostCommandBarControl::Click()
{
    throw Failure(Error::InvalidCall, "\"" + Now().caption + "\" is no button");
}

void HostCommandBarControl::CheckUsable() const
{
    const auto& now = Now();
    if (!now.visible) {
        throw Failure(Error::InvalidCall, "\"" + now.caption + "\" is hidden");
    }
    if (!now.enabled) {
        throw Failure(Error::InvalidCall, "\"" + now.caption + "\" is disabled");
    }
    Bar()->CheckUsable();
}

void HostCommandBarControl::PutOn(const Ref<HostCommandBar>& bar)
{
    mBar = bar.Shared();
}

void HostCommandBarControl::Remove()
{
    Bar()->Remove(shared_from_this());
}

Ref<CommandBarControl> HostCommandBarControl::CopyTo(const Ref<CommandBar>& bar) const
{
    Now();
    // Asking for the name fails for nothing and for a bar that is gone.
    bar->Name();
    const auto target = bar.As<HostCommandBar>();
    const auto copy = Duplicate();
    target->Append(copy);
    return copy.As<CommandBarControl>();
}

Ref<HostCommandBar> HostCommandBarControl::Bar() const
{
    Now();
    auto bar = mBar.lock();
    if (!bar) {
        throw Failure(Error::ObjectNotFound);
    }
    return bar;
}

void HostCommandBarControl::TellOfChange() const
{
    if (const auto bar = mBar.lock()) {
        bar->Changed();
    }
}

}
