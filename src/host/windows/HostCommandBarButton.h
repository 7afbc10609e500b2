#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "host/windows/HostControl.h"
#include "platform/commandbars/CommandBarButton.h"

#include <cstdint>
#include <utility>

namespace tempodial {

/// A button of a command bar. One made of a built-in command runs that command.
class HostCommandBarButton final : public HostControl<CommandBarButton>
{
public:
    using HostControl::HostControl;

    /// The number of the built-in command, whose face it shows; 0 for a button of a program's own.
    std::int32_t FaceId() const override { return Now().id == OwnId ? 0 : Now().id; }
    ButtonStyle Style() const override;
    void SetStyle(ButtonStyle style) override;
    void SetPicture(const Ref<Picture>& picture) override;
    void SetMask(const Ref<Picture>& mask) override;
    Subscription Subscribe(CommandBarButtonEvents events) override;

    /// Raises `Click` on this button alone, whatever its tag, then runs the built-in command unless that was kept from
    /// running. Fails (5) when a person can't work it, and as the command does.
    void Click() override;
    Ref<HostCommandBarControl> Duplicate() const override;
    /// The picture, nothing when it has none.
    const Ref<Picture>& ShownPicture() const { return mPicture; }
    /// The mask of the picture, nothing when it has none.
    const Ref<Picture>& ShownMask() const { return mMask; }

private:
    ButtonStyle mStyle = ButtonStyle::Automatic;
    Ref<Picture> mPicture;
    Ref<Picture> mMask;
    EventSource<CommandBarButtonEvents> mEvents;
};

}
