#include "support/ObservedCommandBars.h"

namespace tempodial {

ObservedCommandBarButton::ObservedCommandBarButton(Ref<CommandBarButton> button, WindowObserver observer)
    : ObservedControl(std::move(button), std::move(observer), "Button")
{
}

ButtonStyle ObservedCommandBarButton::Style() const
{
    return Told("Style")->Style();
}

void ObservedCommandBarButton::SetStyle(ButtonStyle style)
{
    Told("SetStyle")->SetStyle(style);
}

void ObservedCommandBarButton::SetPicture(const Ref<Picture>& picture)
{
    Told("SetPicture")->SetPicture(picture);
}

void ObservedCommandBarButton::SetMask(const Ref<Picture>& mask)
{
    Told("SetMask")->SetMask(mask);
}

Subscription ObservedCommandBarButton::Subscribe(CommandBarButtonEvents events)
{
    return Told("Subscribe")->Subscribe(std::move(events));
}

ObservedCommandBarControls::ObservedCommandBarControls(Ref<CommandBarControls> controls, WindowObserver observer)
    : mControls(std::move(controls))
    , mObserver(std::move(observer))
{
}

std::int32_t ObservedCommandBarControls::Count()
{
    return Told("Count")->Count();
}

Ref<CommandBarControl> ObservedCommandBarControls::Item(std::int32_t index)
{
    return Observed(Told("Item")->Item(index));
}

Ref<CommandBarControl> ObservedCommandBarControls::ItemCaptioned(const std::string& caption)
{
    return Observed(Told("ItemCaptioned")->ItemCaptioned(caption));
}

Ref<CommandBarControl> ObservedCommandBarControls::Add(const CommandBarAddition& addition)
{
    return Observed(Told("Add " + addition.parameter)->Add(addition));
}

Ref<CommandBarControl> ObservedCommandBarControls::Observed(const Ref<CommandBarControl>& control) const
{
    return ObservedControlOf(control, mObserver);
}

const Ref<CommandBarControls>& ObservedCommandBarControls::Told(const std::string& member) const
{
    mObserver("Controls." + member);
    return mControls;
}

ObservedCommandBarPopup::ObservedCommandBarPopup(Ref<CommandBarPopup> popup, WindowObserver observer)
    : ObservedControl(std::move(popup), std::move(observer), "Popup")
{
}

Ref<CommandBarControls> ObservedCommandBarPopup::Controls()
{
    return MakeRef<ObservedCommandBarControls>(Told("Controls")->Controls(), Observer());
}

Ref<tempodial::CommandBar> ObservedCommandBarPopup::CommandBar()
{
    return ObservedBarOf(Told("CommandBar")->CommandBar(), Observer());
}

ObservedCommandBar::ObservedCommandBar(Ref<CommandBar> bar, WindowObserver observer)
    : mBar(std::move(bar))
    , mObserver(std::move(observer))
{
}

std::string ObservedCommandBar::Name() const
{
    return Told("Name")->Name();
}

BarPosition ObservedCommandBar::Position() const
{
    return Told("Position")->Position();
}

void ObservedCommandBar::SetPosition(BarPosition position)
{
    Told("SetPosition")->SetPosition(position);
}

bool ObservedCommandBar::Visible() const
{
    return Told("Visible")->Visible();
}

void ObservedCommandBar::SetVisible(bool visible)
{
    Told("SetVisible")->SetVisible(visible);
}

Ref<CommandBarControls> ObservedCommandBar::Controls()
{
    return MakeRef<ObservedCommandBarControls>(Told("Controls")->Controls(), mObserver);
}

Ref<CommandBarControl> ObservedCommandBar::FindControl(const ControlSearch& search)
{
    return ObservedControlOf(Told("FindControl")->FindControl(search), mObserver);
}

void ObservedCommandBar::Delete()
{
    Told("Delete")->Delete();
}

const Ref<CommandBar>& ObservedCommandBar::Bare() const
{
    return mBar;
}

const Ref<CommandBar>& ObservedCommandBar::Told(const std::string& member) const
{
    mObserver("Bar." + member);
    return mBar;
}

ObservedCommandBars::ObservedCommandBars(Ref<CommandBars> bars, WindowObserver observer)
    : mBars(std::move(bars))
    , mObserver(std::move(observer))
{
}

std::int32_t ObservedCommandBars::Count()
{
    return Told("Count")->Count();
}

Ref<CommandBar> ObservedCommandBars::Item(std::int32_t index)
{
    return ObservedBarOf(Told("Item")->Item(index), mObserver);
}

Ref<CommandBar> ObservedCommandBars::ItemNamed(const std::string& name)
{
    return ObservedBarOf(Told("ItemNamed " + name)->ItemNamed(name), mObserver);
}

Ref<CommandBar> ObservedCommandBars::Add(const std::string& name)
{
    return ObservedBarOf(Told("Add " + name)->Add(name), mObserver);
}

const Ref<CommandBars>& ObservedCommandBars::Told(const std::string& member) const
{
    mObserver("CommandBars." + member);
    return mBars;
}

Ref<CommandBarControl> ObservedControlOf(const Ref<CommandBarControl>& control, const WindowObserver& observer)
{
    if (const auto button = control.As<CommandBarButton>()) {
        return MakeRef<ObservedCommandBarButton>(button, observer);
    }
    if (const auto popup = control.As<CommandBarPopup>()) {
        return MakeRef<ObservedCommandBarPopup>(popup, observer);
    }
    return control;
}

Ref<CommandBar> ObservedBarOf(const Ref<CommandBar>& bar, const WindowObserver& observer)
{
    return bar ? MakeRef<ObservedCommandBar>(bar, observer) : nullptr;
}

Ref<CommandBar> BareBarOf(const Ref<CommandBar>& bar)
{
    const auto observed = bar.As<ObservedCommandBar>();
    return observed ? observed->Bare() : bar;
}

}
