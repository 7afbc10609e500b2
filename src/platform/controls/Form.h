#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "platform/controls/Control.h"

#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// The kinds of controls that a form can hold.
enum class ControlKind { Label, Button, TextBox, ComboBox, CheckBox, OptionButton, ProgressBar };

/// What a button is to the keys of a form: Enter clicks the default one, Escape the one that cancels.
enum class ButtonRole { None, Default, Cancel };

/// One control of a form as data: its name, kind, and text or caption.
struct ControlDefinition
{
    std::string name;
    ControlKind kind;
    std::string text;
    /// False for a control that lies outside the part of the form that can be seen.
    bool onForm = true;
    /// What the form tells of the control when the pointer rests on it; empty for nothing.
    std::string toolTip {};
    /// What a button is to the keys.
    ButtonRole role = ButtonRole::None;
    /// True for a text box that shows several lines, in which Enter begins another.
    bool severalLines = false;
};

/// A form as data: its class, its title and its controls in their order, a row of the layout each.
struct FormDefinition
{
    std::string className;
    std::string title;
    std::vector<std::vector<ControlDefinition>> rows;
};

/// What happens to a form.
struct FormEvents
{
    /// The user closes the form by its frame; a handler that sets `cancel` keeps it open.
    std::function<void(bool& cancel)> QueryClose;
};

/// A form. It is shown without blocking.
class Form
{
public:
    using Events = FormEvents;

    virtual ~Form() = default;

    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual bool Visible() const = 0;
    /// Shows the form, or brings a visible one to the front.
    virtual void Show() = 0;
    /// Takes the form off the screen; its controls keep their values.
    virtual void Hide() = 0;
    /// Takes the form off the screen for good.
    virtual void Unload() = 0;
    /// Brings the form in front of other windows.
    virtual void BringToFront() = 0;
    /// Draws the form anew at once.
    virtual void Refresh() = 0;
    /// The control of that name; an unknown name fails (5).
    virtual Ref<tempodial::Control> Control(const std::string& name) = 0;

    virtual Subscription Subscribe(FormEvents events) = 0;
};

/// Makes forms from their definitions.
class FormFactory
{
public:
    virtual ~FormFactory() = default;

    /// A new form, not yet shown.
    virtual Ref<Form> Create(const FormDefinition& definition) = 0;
};

}
