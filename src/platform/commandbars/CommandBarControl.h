#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <string>

namespace tempodial {

class CommandBar;

/// Office's numbers for kinds of controls.
enum class CommandBarControlType : std::int32_t { Button = 1, Popup = 10, SplitButtonPopup = 13 };

/// A control of a command bar. Every member fails (-2147221233) when the control is gone.
class CommandBarControl
{
public:
    virtual ~CommandBarControl() = default;

    virtual CommandBarControlType Type() const = 0;
    /// The number of a built-in command, 1 for a control that a program made.
    virtual std::int32_t Id() const = 0;
    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual std::string Tag() const = 0;
    virtual void SetTag(const std::string& tag) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    /// True when a line stands in front of the control.
    virtual bool BeginGroup() const = 0;
    virtual void SetBeginGroup(bool beginGroup) = 0;
    /// The number of the face; a control that has none, as it is no button, fails (438).
    virtual std::int32_t FaceId() const = 0;
    /// Places a copy of the control at the end of a bar and answers it.
    virtual Ref<CommandBarControl> Copy(const Ref<CommandBar>& bar) = 0;
    virtual void Delete() = 0;
};

}
