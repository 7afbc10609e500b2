#include "faults/Interposed.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct ClassNames<CommandBars>
{
    static constexpr std::string_view All[] { "CommandBars" };
};
template <> struct ClassNames<CommandBar>
{
    static constexpr std::string_view All[] { "CommandBar" };
};
template <> struct ClassNames<CommandBarControls>
{
    static constexpr std::string_view All[] { "CommandBarControls" };
};
template <> struct ClassNames<CommandBarControl>
{
    static constexpr std::string_view All[] { "CommandBarControl" };
};
template <> struct ClassNames<CommandBarButton>
{
    static constexpr std::string_view All[] { "CommandBarButton", "CommandBarControl" };
};
template <> struct ClassNames<CommandBarPopup>
{
    static constexpr std::string_view All[] { "CommandBarPopup", "CommandBarControl" };
};

namespace {

class InterposedBars final : public Interposed<CommandBars>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<CommandBar> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Ref<CommandBar> ItemNamed(const std::string& name) override
    {
        return Wrap(Call({ "Item", name }, &Object::ItemNamed, name));
    }
    Ref<CommandBar> Add(const std::string& name) override { return Wrap(Call({ "Add", name }, &Object::Add, name)); }
};

class InterposedBar final : public Interposed<CommandBar>
{
public:
    using Interposed::Interposed;

    std::string Name() const override { return Call("Name", &Object::Name); }
    BarPosition Position() const override { return Call("Position", &Object::Position); }
    void SetPosition(BarPosition position) override { Set("Position", &Object::SetPosition, position); }
    bool Visible() const override { return Call("Visible", &Object::Visible); }
    void SetVisible(bool visible) override { Set("Visible", &Object::SetVisible, visible); }
    Ref<CommandBarControls> Controls() override { return Wrap(Call("Controls", &Object::Controls)); }
    Ref<CommandBarControl> FindControl(const ControlSearch& search) override
    {
        const auto key = search.tag ? *search.tag : search.id ? std::to_string(*search.id) : std::string();
        return Wrap(Call({ "FindControl", key }, &Object::FindControl, search));
    }
    void Delete() override { Call("Delete", &Object::Delete); }
};

class InterposedControls final : public Interposed<CommandBarControls>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<CommandBarControl> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Ref<CommandBarControl> ItemCaptioned(const std::string& caption) override
    {
        return Wrap(Call({ "Item", caption }, &Object::ItemCaptioned, caption));
    }
    Ref<CommandBarControl> Add(const CommandBarAddition& addition) override
    {
        return Wrap(Call({ "Add", addition.parameter }, &Object::Add, addition));
    }
};

template <class Interface> class InterposedControl : public Interposed<Interface>
{
public:
    using Interposed<Interface>::Interposed;

    CommandBarControlType Type() const override { return this->Call("Type", &Interface::Type); }
    std::int32_t Id() const override { return this->Call("Id", &Interface::Id); }
    std::string Caption() const override { return this->Call("Caption", &Interface::Caption); }
    void SetCaption(const std::string& caption) override
    {
        this->Set({ "Caption", caption }, &Interface::SetCaption, caption);
    }
    std::string Tag() const override { return this->Call("Tag", &Interface::Tag); }
    void SetTag(const std::string& tag) override { this->Set("Tag", &Interface::SetTag, tag); }
    bool Enabled() const override { return this->Call("Enabled", &Interface::Enabled); }
    void SetEnabled(bool enabled) override { this->Set("Enabled", &Interface::SetEnabled, enabled); }
    bool Visible() const override { return this->Call("Visible", &Interface::Visible); }
    void SetVisible(bool visible) override { this->Set("Visible", &Interface::SetVisible, visible); }
    bool BeginGroup() const override { return this->Call("BeginGroup", &Interface::BeginGroup); }
    void SetBeginGroup(bool beginGroup) override { this->Set("BeginGroup", &Interface::SetBeginGroup, beginGroup); }
    std::int32_t FaceId() const override { return this->Call("FaceId", &Interface::FaceId); }
    Ref<CommandBarControl> Copy(const Ref<CommandBar>& bar) override
    {
        return this->Wrap(this->Call("Copy", &Interface::Copy, Unwrapped(bar)));
    }
    void Delete() override { this->Call("Delete", &Interface::Delete); }
};

class InterposedButton final : public InterposedControl<CommandBarButton>
{
public:
    using InterposedControl::InterposedControl;

    ButtonStyle Style() const override { return Call("Style", &Object::Style); }
    void SetStyle(ButtonStyle style) override { Set("Style", &Object::SetStyle, style); }
    void SetPicture(const Ref<Picture>& picture) override { Set("Picture", &Object::SetPicture, picture); }
    void SetMask(const Ref<Picture>& mask) override { Set("Mask", &Object::SetMask, mask); }
    Subscription Subscribe(CommandBarButtonEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe,
            CommandBarButtonEvents { .Click = [interposer = Between(), click = std::move(events.Click)](
                                                  const Ref<CommandBarButton>& control, bool& cancelDefault) {
                if (click) {
                    click(Wrapped(control, interposer), cancelDefault);
                }
            } });
    }
};

class InterposedPopup final : public InterposedControl<CommandBarPopup>
{
public:
    using InterposedControl::InterposedControl;

    Ref<CommandBarControls> Controls() override { return Wrap(Call("Controls", &Object::Controls)); }
    Ref<tempodial::CommandBar> CommandBar() override { return Wrap(Call("CommandBar", &Object::CommandBar)); }
};

}

Ref<CommandBars> Wrapped(const Ref<CommandBars>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedBars>(object, interposer);
}

Ref<CommandBar> Wrapped(const Ref<CommandBar>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedBar>(object, interposer);
}

Ref<CommandBarControls> Wrapped(const Ref<CommandBarControls>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedControls>(object, interposer);
}

Ref<CommandBarControl> Wrapped(const Ref<CommandBarControl>& object, const Ref<Interposer>& interposer)
{
    if (const auto button = object.As<CommandBarButton>()) {
        return Wrapped(button, interposer);
    }
    if (const auto popup = object.As<CommandBarPopup>()) {
        return WrappedAs<InterposedPopup>(popup, interposer);
    }
    return WrappedAs<InterposedControl<CommandBarControl>>(object, interposer);
}

Ref<CommandBarButton> Wrapped(const Ref<CommandBarButton>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedButton>(object, interposer);
}

}
