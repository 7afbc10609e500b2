#include "driver/remote/FaceMembers.h"
#include "driver/remote/WirePicture.h"
#include "platform/commandbars/CommandBar.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarControls.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/commandbars/CommandBars.h"

namespace tempodial {

namespace {

constexpr std::int32_t ClickEvent = 1;

WireValue FindControl(CommandBar& bar, const FaceCall& call)
{
    // What isn't looked for here, a type, or whether it can be seen or is in a menu, must be left out.
    for (const std::size_t position : { 0, 3, 4 }) {
        if (call.At(position).kind != WireKind::Missing) {
            throw Failure(Error::InvalidCall);
        }
    }
    return call.Give(bar.FindControl(
        { .id = call.Take<std::optional<std::int32_t>>(1), .tag = call.Take<std::optional<std::string>>(2) }));
}

WireValue AddControl(CommandBarControls& controls, const FaceCall& call)
{
    return call.Give(controls.Add({ .type = call.Take<CommandBarControlType>(0),
        .id = call.Take<std::optional<std::int32_t>>(1),
        .parameter = call.Take<std::optional<std::string>>(2).value_or(""),
        .before = call.Take<std::optional<std::int32_t>>(3),
        .temporary = call.Take<std::optional<bool>>(4).value_or(false) }));
}

/// A property that takes a picture, and is set alone.
FaceMembers<CommandBarButton>::Member PictureProperty(void (CommandBarButton::*set)(const Ref<Picture>& picture))
{
    return [set](CommandBarButton& button, const FaceCall& call) {
        if (!call.IsPut()) {
            FaceMembers<CommandBarButton>::RefuseForm();
        }
        const auto& bytes = call.At(0);
        (button.*set)(bytes.kind == WireKind::Text ? MakeRef<WirePicture>(bytes.text) : Ref<Picture>());
        return WireValue();
    };
}

/// The members of controls of all kinds, together with those of one kind.
template <class Interface>
std::map<std::string_view, typename FaceClass<Interface>::Member> WithControlMembers(
    std::map<std::string_view, typename FaceClass<Interface>::Member> members)
{
    using Members = FaceMembers<Interface>;
    members["Type"] = Members::Kind(&Interface::Type);
    members["Id"] = Members::Property(&Interface::Id);
    members["FaceId"] = Members::Property(&Interface::FaceId);
    members["Caption"] = Members::Property(&Interface::Caption, &Interface::SetCaption);
    members["Tag"] = Members::Property(&Interface::Tag, &Interface::SetTag);
    members["Enabled"] = Members::Property(&Interface::Enabled, &Interface::SetEnabled);
    members["Visible"] = Members::Property(&Interface::Visible, &Interface::SetVisible);
    members["BeginGroup"] = Members::Property(&Interface::BeginGroup, &Interface::SetBeginGroup);
    members["Copy"] = Members::Method(&Interface::Copy);
    members["Delete"] = Members::Method(&Interface::Delete);
    return members;
}

}

template <> const FaceClass<CommandBars>& FaceOf()
{
    using Members = FaceMembers<CommandBars>;
    static const FaceClass<CommandBars> face { "CommandBars",
        { { "Count", Members::Property(&CommandBars::Count) },
            { "Item", Members::Keyed<CommandBar>(&CommandBars::Item, &CommandBars::ItemNamed) },
            { "Add", Members::Method(&CommandBars::Add) } } };
    return face;
}

template <> const FaceClass<CommandBar>& FaceOf()
{
    using Members = FaceMembers<CommandBar>;
    static const FaceClass<CommandBar> face { "CommandBar",
        { { "Name", Members::Property(&CommandBar::Name) },
            { "Position", Members::Property(&CommandBar::Position, &CommandBar::SetPosition) },
            { "Visible", Members::Property(&CommandBar::Visible, &CommandBar::SetVisible) },
            { "Controls", Members::Property(&CommandBar::Controls) }, { "FindControl", FindControl },
            { "Delete", Members::Method(&CommandBar::Delete) } } };
    return face;
}

template <> const FaceClass<CommandBarControls>& FaceOf()
{
    using Members = FaceMembers<CommandBarControls>;
    static const FaceClass<CommandBarControls> face { "CommandBarControls",
        { { "Count", Members::Property(&CommandBarControls::Count) },
            { "Item",
                Members::Keyed<CommandBarControl>(&CommandBarControls::Item, &CommandBarControls::ItemCaptioned) },
            { "Add", AddControl } } };
    return face;
}

template <> const FaceClass<CommandBarControl>& FaceOf()
{
    static const FaceClass<CommandBarControl> face { "CommandBarControl", WithControlMembers<CommandBarControl>({}) };
    return face;
}

template <> const FaceClass<CommandBarButton>& FaceOf()
{
    using BarButton = CommandBarButton;
    using Members = FaceMembers<BarButton>;
    static const FaceClass<BarButton> face { "CommandBarButton",
        WithControlMembers<BarButton>({ { "Style", Members::Property(&BarButton::Style, &BarButton::SetStyle) },
            { "Picture", PictureProperty(&BarButton::SetPicture) }, { "Mask", PictureProperty(&BarButton::SetMask) } }),
        [](const Ref<BarButton>& button, const FaceRaiser& raise) {
            return button->Subscribe({ .Click = [raise](const Ref<BarButton>& clicked, bool& cancel) {
                cancel = raise.RefusedAbout(ClickEvent, clicked) || cancel;
            } });
        } };
    return face;
}

template <> const FaceClass<CommandBarPopup>& FaceOf()
{
    using Members = FaceMembers<CommandBarPopup>;
    static const FaceClass<CommandBarPopup> face { "CommandBarPopup",
        WithControlMembers<CommandBarPopup>({ { "Controls", Members::Property(&CommandBarPopup::Controls) },
            { "CommandBar", Members::Property(&CommandBarPopup::CommandBar) } }) };
    return face;
}

}
