#include "addin/com/Adapter.h"

namespace tempodial {

namespace {

constexpr DISPID ButtonClick = 1;
constexpr IID ButtonEvents = OutlookEvents(0x000C0351);

/// An argument that is left out.
constexpr std::optional<std::int32_t> Omitted;

class ComCommandBars final : public Adapter<ComCommandBars, CommandBars>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<CommandBar> Item(std::int32_t index) override { return Get<Ref<CommandBar>>("Item", index); }
    Ref<CommandBar> ItemNamed(const std::string& name) override { return Get<Ref<CommandBar>>("Item", name); }
    Ref<CommandBar> Add(const std::string& name) override { return Call<Ref<CommandBar>>("Add", name); }
};

class ComCommandBar final : public Adapter<ComCommandBar, CommandBar>
{
public:
    using Adapter::Adapter;

    std::string Name() const override { return Get<std::string>("Name"); }
    BarPosition Position() const override { return Get<BarPosition>("Position"); }
    void SetPosition(BarPosition position) override { Put("Position", position); }
    bool Visible() const override { return Get<bool>("Visible"); }
    void SetVisible(bool visible) override { Put("Visible", visible); }
    Ref<CommandBarControls> Controls() override { return Get<Ref<CommandBarControls>>("Controls"); }
    Ref<CommandBarControl> FindControl(const ControlSearch& search) override
    {
        return Call<Ref<CommandBarControl>>("FindControl", Omitted, search.id, search.tag);
    }
    void Delete() override { Do("Delete"); }
};

class ComCommandBarControls final : public Adapter<ComCommandBarControls, CommandBarControls>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<CommandBarControl> Item(std::int32_t index) override { return Get<Ref<CommandBarControl>>("Item", index); }
    Ref<CommandBarControl> ItemCaptioned(const std::string& caption) override
    {
        return Get<Ref<CommandBarControl>>("Item", caption);
    }
    Ref<CommandBarControl> Add(const CommandBarAddition& addition) override
    {
        const auto parameter = addition.parameter.empty() ? std::nullopt : std::optional(addition.parameter);
        return Call<Ref<CommandBarControl>>(
            "Add", addition.type, addition.id, parameter, addition.before, addition.temporary);
    }
};

/// What controls of all kinds have.
template <class Self, class Interface> class ControlAdapter : public Adapter<Self, Interface>
{
public:
    using Adapter<Self, Interface>::Adapter;

    CommandBarControlType Type() const override { return this->template Get<CommandBarControlType>("Type"); }
    std::int32_t Id() const override { return this->template Get<std::int32_t>("Id"); }
    std::string Caption() const override { return this->template Get<std::string>("Caption"); }
    void SetCaption(const std::string& caption) override { this->Put("Caption", caption); }
    std::string Tag() const override { return this->template Get<std::string>("Tag"); }
    void SetTag(const std::string& tag) override { this->Put("Tag", tag); }
    bool Enabled() const override { return this->template Get<bool>("Enabled"); }
    void SetEnabled(bool enabled) override { this->Put("Enabled", enabled); }
    bool Visible() const override { return this->template Get<bool>("Visible"); }
    void SetVisible(bool visible) override { this->Put("Visible", visible); }
    bool BeginGroup() const override { return this->template Get<bool>("BeginGroup"); }
    void SetBeginGroup(bool beginGroup) override { this->Put("BeginGroup", beginGroup); }
    std::int32_t FaceId() const override { return this->template Get<std::int32_t>("FaceId"); }
    Ref<CommandBarControl> Copy(const Ref<CommandBar>& bar) override
    {
        return this->template Call<Ref<CommandBarControl>>("Copy", bar);
    }
    void Delete() override { this->Do("Delete"); }
};

/// A control that is neither a plain button nor a menu.
class ComOtherControl final : public ControlAdapter<ComOtherControl, CommandBarControl>
{
public:
    using ControlAdapter::ControlAdapter;

    /// The type, read for the binding's own needs.
    CommandBarControlType TypeNow() const { return Taken<CommandBarControlType>::From(Late().Read("Type")); }
};

class ComCommandBarButton final : public ControlAdapter<ComCommandBarButton, CommandBarButton>
{
public:
    using ControlAdapter::ControlAdapter;

    ButtonStyle Style() const override { return Get<ButtonStyle>("Style"); }
    void SetStyle(ButtonStyle style) override { Put("Style", style); }
    void SetPicture(const Ref<Picture>& picture) override { Put("Picture", picture); }
    void SetMask(const Ref<Picture>& mask) override { Put("Mask", mask); }
    Subscription Subscribe(CommandBarButtonEvents events) override
    {
        const auto click = [raise = events.Click](const EventArguments& arguments) {
            arguments.AskForCancel(
                [&](bool& cancel) { raise(Adapted<CommandBarButton>(arguments.Object(0)), cancel); });
        };
        return EventSink::Subscribe(
            Dispatch(), { ButtonEvents }, { { ButtonClick, events.Click ? EventSink::Handler(click) : nullptr } });
    }
};

class ComCommandBarPopup final : public ControlAdapter<ComCommandBarPopup, CommandBarPopup>
{
public:
    using ControlAdapter::ControlAdapter;

    Ref<CommandBarControls> Controls() override { return Get<Ref<CommandBarControls>>("Controls"); }
    Ref<tempodial::CommandBar> CommandBar() override { return Get<Ref<tempodial::CommandBar>>("CommandBar"); }
};

/// The type of a control, nothing when it can't be read.
std::optional<CommandBarControlType> TypeOf(const ComRef<IDispatch>& control)
{
    try {
        return ComOtherControl(control).TypeNow();
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}

template <> Ref<CommandBars> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComCommandBars, CommandBars>(object);
}

template <> Ref<CommandBar> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComCommandBar, CommandBar>(object);
}

template <> Ref<CommandBarControls> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComCommandBarControls, CommandBarControls>(object);
}

template <> Ref<CommandBarControl> Adapted(const ComRef<IDispatch>& object)
{
    if (!object) {
        return nullptr;
    }
    const auto type = TypeOf(object);
    if (type == CommandBarControlType::Button) {
        return MakeRef<ComCommandBarButton>(object);
    }
    if (type == CommandBarControlType::Popup) {
        return MakeRef<ComCommandBarPopup>(object);
    }
    return MakeRef<ComOtherControl>(object);
}

template <> Ref<CommandBarButton> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComCommandBarButton, CommandBarButton>(object);
}

template <> Ref<CommandBarPopup> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComCommandBarPopup, CommandBarPopup>(object);
}

}
