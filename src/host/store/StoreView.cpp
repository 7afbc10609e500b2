#include "host/store/StoreView.h"

#include "base/Failure.h"
#include "host/store/Mailbox.h"

#include <utility>

namespace tempodial {

namespace {

const ViewTable::Entry& Get(Mailbox& mailbox, std::int64_t folder, const std::string& name)
{
    mailbox.Tree().Get(folder);
    const auto* view = mailbox.Views().Find(folder, name);
    if (view == nullptr) {
        throw Failure(Error::ObjectNotFound);
    }
    return *view;
}

}

StoreView::StoreView(Ref<Mailbox> mailbox, std::int64_t folder, std::string name)
    : mMailbox(std::move(mailbox))
    , mFolder(folder)
    , mName(std::move(name))
{
}

std::string StoreView::Name() const
{
    return Get(*mMailbox, mFolder, mName).name;
}

ViewType StoreView::ViewType() const
{
    return Get(*mMailbox, mFolder, mName).type;
}

std::string StoreView::XML() const
{
    const auto& view = Get(*mMailbox, mFolder, mName);
    return mUnsavedXml.value_or(view.xml);
}

void StoreView::SetXML(const std::string& xml)
{
    Get(*mMailbox, mFolder, mName);
    mMailbox->CheckView(xml);
    mUnsavedXml = xml;
}

void StoreView::Save()
{
    mMailbox->Tree().Get(mFolder);
    mMailbox->Views().Save(mFolder, mName, XML());
    mUnsavedXml.reset();
}

}
