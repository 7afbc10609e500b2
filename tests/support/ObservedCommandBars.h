#pragma once

#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/commandbars/CommandBars.h"

#include <functional>
#include <string>
#include <utility>

namespace tempodial {

/// Told of each member of a window or its bars that is about to be used, such as "Button.SetEnabled"; what it throws,
/// the member fails with.
using WindowObserver = std::function<void(const std::string& member)>;

class ObservedCommandBar;

/// A control with its observer.
Ref<CommandBarControl> ObservedControlOf(const Ref<CommandBarControl>& control, const WindowObserver& observer);
/// A bar with its observer, nothing for nothing.
Ref<CommandBar> ObservedBarOf(const Ref<CommandBar>& bar, const WindowObserver& observer);
/// The bar behind a bar with an observer, which may have none.
Ref<CommandBar> BareBarOf(const Ref<CommandBar>& bar);

/// What all kinds of controls tell an observer of.
template <class Interface> class ObservedControl : public Interface
{
public:
    ObservedControl(Ref<Interface> control, WindowObserver observer, std::string kind)
        : mControl(std::move(control))
        , mObserver(std::move(observer))
        , mKind(std::move(kind))
    {
    }

    CommandBarControlType Type() const override { return Told("Type")->Type(); }
    std::int32_t Id() const override { return Told("Id")->Id(); }
    std::string Caption() const override { return Told("Caption")->Caption(); }
    void SetCaption(const std::string& caption) override { Told("SetCaption " + caption)->SetCaption(caption); }
    std::string Tag() const override { return Told("Tag")->Tag(); }
    void SetTag(const std::string& tag) override { Told("SetTag")->SetTag(tag); }
    bool Enabled() const override { return Told("Enabled")->Enabled(); }
    void SetEnabled(bool enabled) override { Told("SetEnabled")->SetEnabled(enabled); }
    bool Visible() const override { return Told("Visible")->Visible(); }
    void SetVisible(bool visible) override { Told("SetVisible")->SetVisible(visible); }
    bool BeginGroup() const override { return Told("BeginGroup")->BeginGroup(); }
    void SetBeginGroup(bool beginGroup) override { Told("SetBeginGroup")->SetBeginGroup(beginGroup); }
    std::int32_t FaceId() const override { return Told("FaceId")->FaceId(); }
    Ref<CommandBarControl> Copy(const Ref<CommandBar>& bar) override
    {
        return ObservedControlOf(Told("Copy")->Copy(BareBarOf(bar)), mObserver);
    }
    void Delete() override { Told("Delete")->Delete(); }

protected:
    const Ref<Interface>& Told(const std::string& member) const
    {
        mObserver(mKind + "." + member);
        return mControl;
    }
    const WindowObserver& Observer() const { return mObserver; }

private:
    Ref<Interface> mControl;
    WindowObserver mObserver;
    std::string mKind;
};

/// A button that tells an observer of its use.
class ObservedCommandBarButton : public ObservedControl<CommandBarButton>
{
public:
    ObservedCommandBarButton(Ref<CommandBarButton> button, WindowObserver observer);

    ButtonStyle Style() const override;
    void SetStyle(ButtonStyle style) override;
    void SetPicture(const Ref<Picture>& picture) override;
    void SetMask(const Ref<Picture>& mask) override;
    Subscription Subscribe(CommandBarButtonEvents events) override;
};

/// Controls that tell an observer of their use.
class ObservedCommandBarControls : public CommandBarControls
{
public:
    ObservedCommandBarControls(Ref<CommandBarControls> controls, WindowObserver observer);

    std::int32_t Count() override;
    Ref<CommandBarControl> Item(std::int32_t index) override;
    Ref<CommandBarControl> ItemCaptioned(const std::string& caption) override;
    Ref<CommandBarControl> Add(const CommandBarAddition& addition) override;

private:
    Ref<CommandBarControl> Observed(const Ref<CommandBarControl>& control) const;
    const Ref<CommandBarControls>& Told(const std::string& member) const;

    Ref<CommandBarControls> mControls;
    WindowObserver mObserver;
};

/// A menu that tells an observer of its use.
class ObservedCommandBarPopup : public ObservedControl<CommandBarPopup>
{
public:
    ObservedCommandBarPopup(Ref<CommandBarPopup> popup, WindowObserver observer);

    Ref<CommandBarControls> Controls() override;
    Ref<tempodial::CommandBar> CommandBar() override;
};

/// A bar that tells an observer of its use.
class ObservedCommandBar : public CommandBar
{
public:
    ObservedCommandBar(Ref<CommandBar> bar, WindowObserver observer);

    std::string Name() const override;
    BarPosition Position() const override;
    void SetPosition(BarPosition position) override;
    bool Visible() const override;
    void SetVisible(bool visible) override;
    Ref<CommandBarControls> Controls() override;
    Ref<CommandBarControl> FindControl(const ControlSearch& search) override;
    void Delete() override;

    const Ref<CommandBar>& Bare() const;

private:
    const Ref<CommandBar>& Told(const std::string& member) const;

    Ref<CommandBar> mBar;
    WindowObserver mObserver;
};

/// Bars that tell an observer of their use.
class ObservedCommandBars : public CommandBars
{
public:
    ObservedCommandBars(Ref<CommandBars> bars, WindowObserver observer);

    std::int32_t Count() override;
    Ref<CommandBar> Item(std::int32_t index) override;
    Ref<CommandBar> ItemNamed(const std::string& name) override;
    Ref<CommandBar> Add(const std::string& name) override;

private:
    const Ref<CommandBars>& Told(const std::string& member) const;

    Ref<CommandBars> mBars;
    WindowObserver mObserver;
};

}
