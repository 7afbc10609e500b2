#include "host/windows/HostCommandBarButton.h"

#include "host/windows/HostCommandBar.h"

namespace tempodial {

ButtonStyle HostCommandBarButton::Style() const
{
    Now();
    return mStyle;
}

void HostCommandBarButton::SetStyle(ButtonStyle style)
{
    Now();
    mStyle = style;
    TellOfChange();
}

void HostCommandBarButton::SetPicture(const Ref<Picture>& picture)
{
    Now();
    mPicture = picture;
    TellOfChange();
}

void HostCommandBarButton::SetMask(const Ref<Picture>& mask)
{
    Now();
    mMask = mask;
    TellOfChange();
}

Subscription HostCommandBarButton::Subscribe(CommandBarButtonEvents events)
{
    Now();
    return mEvents.Subscribe(std::move(events));
}

void HostCommandBarButton::Click()
{
    CheckUsable();
    const auto self = Ref<HostCommandBarControl>(shared_from_this()).As<CommandBarButton>();
    // A handler may close the window, and with it take this button away.
    const auto frame = Bar()->Frame();
    const auto id = Now().id;
    bool cancelDefault = false;
    mEvents.Raise(&CommandBarButtonEvents::Click, self, cancelDefault);
    if (!cancelDefault && id != OwnId && frame && frame->run) {
        frame->run(id);
    }
}

Ref<HostCommandBarControl> HostCommandBarButton::Duplicate() const
{
    auto copy = MakeRef<HostCommandBarButton>(Now());
    copy->mStyle = mStyle;
    copy->mPicture = mPicture;
    copy->mMask = mMask;
    return copy;
}

}
