#include "host/store/StoreView.h"

#include "base/Failure.h"
#include "host/store/MailboxStore.h"

#include <utility>

namespace tempodial {

namespace {

const ViewTable::Entry& Get(MailboxStore& store, std::int64_t folder, const std::string& name)
{
    store.Tree().Get(folder);
    const auto* view = store.Views().Find(folder, name);
    if (view == nullptr) {
        throw Failure(Error::ObjectNotFound);
    }
    return *view;
}

}

StoreView::StoreView(Ref<MailboxStore> store, std::int64_t folder, std::string name)
    : mStore(std::move(store))
    , mFolder(folder)
    , mName(std::move(name))
{
}

std::string StoreView::Name() const
{
    return Get(*mStore, mFolder, mName).name;
}

ViewType StoreView::ViewType() const
{
    return Get(*mStore, mFolder, mName).type;
}

std::string StoreView::XML() const
{
    const auto& view = Get(*mStore, mFolder, mName);
    return mUnsavedXml.value_or(view.xml);
}

void StoreView::SetXML(const std::string& xml)
{
    Get(*mStore, mFolder, mName);
    mStore->CheckView(xml);
    mUnsavedXml = xml;
}

void StoreView::Save()
{
    mStore->Tree().Get(mFolder);
    mStore->Views().Save(mFolder, mName, XML());
    mUnsavedXml.reset();
}

}
