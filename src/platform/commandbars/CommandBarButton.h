#pragma once

#include "base/Subscription.h"
#include "platform/commandbars/CommandBarControl.h"
#include "platform/system/PictureLoader.h"

#include <cstdint>
#include <functional>

namespace tempodial {

class CommandBarButton;

/// Office's numbers for what a button shows.
enum class ButtonStyle : std::int32_t { Automatic = 0, IconAndCaption = 3 };

/// What happens to a button of a command bar.
struct CommandBarButtonEvents
{
    /// The user clicks it; a handler that sets `cancelDefault` keeps the host's own command from running.
    std::function<void(const Ref<CommandBarButton>& control, bool& cancelDefault)> Click;
};

/// A button of a command bar.
class CommandBarButton : public CommandBarControl
{
public:
    using Events = CommandBarButtonEvents;

    virtual ButtonStyle Style() const = 0;
    virtual void SetStyle(ButtonStyle style) = 0;
    /// Shows a picture in the place of the face.
    virtual void SetPicture(const Ref<Picture>& picture) = 0;
    /// Sets the mask of the picture: what is white in it is left out.
    virtual void SetMask(const Ref<Picture>& mask) = 0;

    virtual Subscription Subscribe(CommandBarButtonEvents events) = 0;
};

}
