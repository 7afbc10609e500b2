#include "driver/remote/FaceMembers.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/Selection.h"
#include "platform/objectmodel/Views.h"

namespace tempodial {

namespace {

constexpr std::int32_t ItemAddEvent = 0xF001;

}

template <> const FaceClass<MAPIFolder>& FaceOf()
{
    using Members = FaceMembers<MAPIFolder>;
    static const FaceClass<MAPIFolder> face { "MAPIFolder",
        { { "EntryID", Members::Property(&MAPIFolder::EntryID) }, { "Name", Members::Property(&MAPIFolder::Name) },
            { "FullFolderPath", Members::Property(&MAPIFolder::FullFolderPath) },
            { "Folders", Members::Property(&MAPIFolder::Folders) }, { "Items", Members::Property(&MAPIFolder::Items) },
            { "Views", Members::Property(&MAPIFolder::Views) } } };
    return face;
}

template <> const FaceClass<Folders>& FaceOf()
{
    using Members = FaceMembers<Folders>;
    static const FaceClass<Folders> face { "Folders",
        { { "Count", Members::Property(&Folders::Count) },
            { "Item", Members::Keyed<MAPIFolder>(&Folders::Item, &Folders::ItemNamed) },
            { "Add", Members::Method(&Folders::Add) } } };
    return face;
}

template <> const FaceClass<Items>& FaceOf()
{
    using Members = FaceMembers<Items>;
    static const FaceClass<Items> face { "Items",
        { { "Count", Members::Property(&Items::Count) }, { "Item", Members::Method(&Items::Item) },
            { "Add", Members::Method(&Items::Add) }, { "Restrict", Members::Method(&Items::Restrict) },
            { "Find", Members::Method(&Items::Find) }, { "Sort", Members::Method(&Items::Sort) } },
        [](const Ref<Items>& items, const FaceRaiser& raise) {
            return items->Subscribe(
                { .ItemAdd = [raise](const Ref<OutlookItem>& item) { raise.About(ItemAddEvent, item); } });
        } };
    return face;
}

template <> const FaceClass<Selection>& FaceOf()
{
    using Members = FaceMembers<Selection>;
    static const FaceClass<Selection> face { "Selection",
        { { "Count", Members::Property(&Selection::Count) }, { "Item", Members::Method(&Selection::Item) } } };
    return face;
}

template <> const FaceClass<Views>& FaceOf()
{
    using Members = FaceMembers<Views>;
    static const FaceClass<Views> face { "Views",
        { { "Count", Members::Property(&Views::Count) },
            { "Item", Members::Keyed<View>(&Views::Item, &Views::ItemNamed) },
            { "Add", Members::Method(&Views::Add) } } };
    return face;
}

template <> const FaceClass<View>& FaceOf()
{
    using Members = FaceMembers<View>;
    static const FaceClass<View> face { "View",
        { { "Name", Members::Property(&View::Name) }, { "ViewType", Members::Property(&View::ViewType) },
            { "XML", Members::Property(&View::XML, &View::SetXML) }, { "Save", Members::Method(&View::Save) } } };
    return face;
}

}
