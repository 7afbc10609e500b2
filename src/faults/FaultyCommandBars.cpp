#include "faults/Faulty.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct FaultNames<CommandBars>
{
    static constexpr std::string_view All[] { "CommandBars" };
};
template <> struct FaultNames<CommandBar>
{
    static constexpr std::string_view All[] { "CommandBar" };
};
template <> struct FaultNames<CommandBarControls>
{
    static constexpr std::string_view All[] { "CommandBarControls" };
};
template <> struct FaultNames<CommandBarControl>
{
    static constexpr std::string_view All[] { "CommandBarControl" };
};
template <> struct FaultNames<CommandBarButton>
{
    static constexpr std::string_view All[] { "CommandBarButton", "CommandBarControl" };
};
template <> struct FaultNames<CommandBarPopup>
{
    static constexpr std::string_view All[] { "CommandBarPopup", "CommandBarControl" };
};

namespace {

class FaultyBars final : public Faulty<CommandBars>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<CommandBar> Item(std::int32_t index) override { return Wrap(Call("Item", std::to_string(index))->Item(index)); }
    Ref<CommandBar> ItemNamed(const std::string& name) override { return Wrap(Call("Item", name)->ItemNamed(name)); }
    Ref<CommandBar> Add(const std::string& name) override { return Wrap(Call("Add", name)->Add(name)); }
};

class FaultyBar final : public Faulty<CommandBar>
{
public:
    using Faulty::Faulty;

    std::string Name() const override { return Call("Name")->Name(); }
    BarPosition Position() const override { return Call("Position")->Position(); }
    void SetPosition(BarPosition position) override { Call("Position")->SetPosition(position); }
    bool Visible() const override { return Call("Visible")->Visible(); }
    void SetVisible(bool visible) override { Call("Visible")->SetVisible(visible); }
    Ref<CommandBarControls> Controls() override { return Wrap(Call("Controls")->Controls()); }
    Ref<CommandBarControl> FindControl(const ControlSearch& search) override
    {
        const auto key = search.tag ? *search.tag : search.id ? std::to_string(*search.id) : std::string();
        return Wrap(Call("FindControl", key)->FindControl(search));
    }
    void Delete() override { Call("Delete")->Delete(); }
};

class FaultyControls final : public Faulty<CommandBarControls>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<CommandBarControl> Item(std::int32_t index) override
    {
        return Wrap(Call("Item", std::to_string(index))->Item(index));
    }
    Ref<CommandBarControl> ItemCaptioned(const std::string& caption) override
    {
        return Wrap(Call("Item", caption)->ItemCaptioned(caption));
    }
    Ref<CommandBarControl> Add(const CommandBarAddition& addition) override
    {
        return Wrap(Call("Add", addition.parameter)->Add(addition));
    }
};

template <class Interface> class FaultyControl : public Faulty<Interface>
{
public:
    using Faulty<Interface>::Faulty;

    CommandBarControlType Type() const override { return this->Call("Type")->Type(); }
    std::int32_t Id() const override { return this->Call("Id")->Id(); }
    std::string Caption() const override { return this->Call("Caption")->Caption(); }
    void SetCaption(const std::string& caption) override { this->Call("Caption")->SetCaption(caption); }
    std::string Tag() const override { return this->Call("Tag")->Tag(); }
    void SetTag(const std::string& tag) override { this->Call("Tag")->SetTag(tag); }
    bool Enabled() const override { return this->Call("Enabled")->Enabled(); }
    void SetEnabled(bool enabled) override { this->Call("Enabled")->SetEnabled(enabled); }
    bool Visible() const override { return this->Call("Visible")->Visible(); }
    void SetVisible(bool visible) override { this->Call("Visible")->SetVisible(visible); }
    bool BeginGroup() const override { return this->Call("BeginGroup")->BeginGroup(); }
    void SetBeginGroup(bool beginGroup) override { this->Call("BeginGroup")->SetBeginGroup(beginGroup); }
    std::int32_t FaceId() const override { return this->Call("FaceId")->FaceId(); }
    Ref<CommandBarControl> Copy(const Ref<CommandBar>& bar) override
    {
        return this->Wrap(this->Call("Copy")->Copy(Unwrapped(bar)));
    }
    void Delete() override { this->Call("Delete")->Delete(); }
};

class FaultyButton final : public FaultyControl<CommandBarButton>
{
public:
    using FaultyControl::FaultyControl;

    ButtonStyle Style() const override { return Call("Style")->Style(); }
    void SetStyle(ButtonStyle style) override { Call("Style")->SetStyle(style); }
    void SetPicture(const Ref<Picture>& picture) override { Call("Picture")->SetPicture(picture); }
    void SetMask(const Ref<Picture>& mask) override { Call("Mask")->SetMask(mask); }
    Subscription Subscribe(CommandBarButtonEvents events) override
    {
        auto* target = Call("Subscribe");
        return target->Subscribe({ .Click = [plan = Plan(), click = std::move(events.Click)](
                                                const Ref<CommandBarButton>& control, bool& cancelDefault) {
            if (click) {
                click(Wrapped(control, plan), cancelDefault);
            }
        } });
    }
};

class FaultyPopup final : public FaultyControl<CommandBarPopup>
{
public:
    using FaultyControl::FaultyControl;

    Ref<CommandBarControls> Controls() override { return Wrap(Call("Controls")->Controls()); }
    Ref<tempodial::CommandBar> CommandBar() override { return Wrap(Call("CommandBar")->CommandBar()); }
};

}

Ref<CommandBars> Wrapped(const Ref<CommandBars>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyBars>(object, plan);
}

Ref<CommandBar> Wrapped(const Ref<CommandBar>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyBar>(object, plan);
}

Ref<CommandBarControls> Wrapped(const Ref<CommandBarControls>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyControls>(object, plan);
}

Ref<CommandBarControl> Wrapped(const Ref<CommandBarControl>& object, const Ref<FaultPlan>& plan)
{
    if (const auto button = object.As<CommandBarButton>()) {
        return Wrapped(button, plan);
    }
    if (const auto popup = object.As<CommandBarPopup>()) {
        return WrappedAs<FaultyPopup>(popup, plan);
    }
    return WrappedAs<FaultyControl<CommandBarControl>>(object, plan);
}

Ref<CommandBarButton> Wrapped(const Ref<CommandBarButton>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyButton>(object, plan);
}

}
