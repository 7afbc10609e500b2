#include "driver/remote/FaceMembers.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/Explorer.h"
#include "platform/objectmodel/Inspector.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/Pages.h"
#include "platform/objectmodel/Selection.h"

namespace tempodial {

namespace {

constexpr std::int32_t NewWindowEvent = 0xF001;
constexpr std::int32_t ActivateEvent = 0xF001;
constexpr std::int32_t FolderSwitchEvent = 0xF002;
constexpr std::int32_t SelectionChangeEvent = 0xF007;
constexpr std::int32_t WindowCloseEvent = 0xF008;

/// The folder that an explorer shows is set by reference, as no other property is.
WireValue CurrentFolder(Explorer& explorer, const FaceCall& call)
{
    if (call.IsPut()) {
        FaceMembers<Explorer>::RefuseForm();
    }
    if (!call.IsPutByReference()) {
        return call.Give(explorer.CurrentFolder());
    }
    explorer.SetCurrentFolder(call.Take<Ref<MAPIFolder>>(0));
    return {};
}

}

template <> const FaceClass<Explorers>& FaceOf()
{
    using Members = FaceMembers<Explorers>;
    static const FaceClass<Explorers> face { "Explorers",
        { { "Count", Members::Property(&Explorers::Count) }, { "Item", Members::Method(&Explorers::Item) } },
        [](const Ref<Explorers>& explorers, const FaceRaiser& raise) {
            return explorers->Subscribe(
                { .NewExplorer = [raise](const Ref<Explorer>& explorer) { raise.About(NewWindowEvent, explorer); } });
        } };
    return face;
}

template <> const FaceClass<Explorer>& FaceOf()
{
    using Members = FaceMembers<Explorer>;
    static const FaceClass<Explorer> face { "Explorer",
        { { "Caption", Members::Property(&Explorer::Caption) }, { "CurrentFolder", CurrentFolder },
            { "CurrentView", Members::Property(&Explorer::CurrentView, &Explorer::SetCurrentView) },
            { "Selection", Members::Property(&Explorer::Selection) },
            { "IsFolderSelected", Members::Method(&Explorer::IsFolderSelected) },
            { "CommandBars", Members::Property(&Explorer::CommandBars) } },
        [](const Ref<Explorer>& explorer, const FaceRaiser& raise) {
            const auto plain = [&](std::int32_t event) { return [raise, event] { raise.Plain(event); }; };
            return explorer->Subscribe({ .Activate = plain(ActivateEvent),
                .FolderSwitch = plain(FolderSwitchEvent),
                .SelectionChange = plain(SelectionChangeEvent),
                .Close = plain(WindowCloseEvent) });
        } };
    return face;
}

template <> const FaceClass<Inspectors>& FaceOf()
{
    using Members = FaceMembers<Inspectors>;
    static const FaceClass<Inspectors> face { "Inspectors",
        { { "Count", Members::Property(&Inspectors::Count) }, { "Item", Members::Method(&Inspectors::Item) } },
        [](const Ref<Inspectors>& inspectors, const FaceRaiser& raise) {
            return inspectors->Subscribe({ .NewInspector
                = [raise](const Ref<Inspector>& inspector) { raise.About(NewWindowEvent, inspector); } });
        } };
    return face;
}

template <> const FaceClass<Inspector>& FaceOf()
{
    using Members = FaceMembers<Inspector>;
    static const FaceClass<Inspector> face { "Inspector",
        { { "Caption", Members::Property(&Inspector::Caption) },
            { "CurrentItem", Members::Property(&Inspector::CurrentItem) },
            { "CommandBars", Members::Property(&Inspector::CommandBars) },
            { "ModifiedFormPages", Members::Property(&Inspector::ModifiedFormPages) } },
        [](const Ref<Inspector>& inspector, const FaceRaiser& raise) {
            return inspector->Subscribe({ .Close = [raise] { raise.Plain(WindowCloseEvent); } });
        } };
    return face;
}

template <> const FaceClass<Pages>& FaceOf()
{
    static const FaceClass<Pages> face { "Pages", { { "Item", FaceMembers<Pages>::Method(&Pages::Item) } } };
    return face;
}

template <> const FaceClass<Page>& FaceOf()
{
    static const FaceClass<Page> face { "Page", { { "Controls", FaceMembers<Page>::Property(&Page::Controls) } } };
    return face;
}

template <> const FaceClass<PageControls>& FaceOf()
{
    static const FaceClass<PageControls> face { "PageControls",
        { { "Item", FaceMembers<PageControls>::Method(&PageControls::Item) } } };
    return face;
}

template <> const FaceClass<PageControl>& FaceOf()
{
    using Members = FaceMembers<PageControl>;
    static const FaceClass<PageControl> face { "PageControl",
        { { "Value", Members::Property(&PageControl::Value, &PageControl::SetValue) },
            { "Text", Members::Property(&PageControl::Text, &PageControl::SetText) },
            { "List", Members::PutOnly(&PageControl::SetList) },
            { "AddItem", Members::Method(&PageControl::AddItem) } } };
    return face;
}

}
