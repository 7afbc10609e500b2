#include "host/store/StoreFolders.h"

#include "base/Failure.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreFolder.h"

#include <cstddef>
#include <utility>

namespace tempodial {

StoreFolders::StoreFolders(Ref<Mailbox> mailbox, std::int64_t parent)
    : mMailbox(std::move(mailbox))
    , mParent(parent)
{
}

std::int32_t StoreFolders::Count()
{
    return static_cast<std::int32_t>(mMailbox->Tree().Get(mParent).children.size());
}

Ref<MAPIFolder> StoreFolders::Item(std::int32_t index)
{
    const auto& children = mMailbox->Tree().Get(mParent).children;
    if (index < 1 || static_cast<std::size_t>(index) > children.size()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return mMailbox->Folder(children[static_cast<std::size_t>(index) - 1]);
}

Ref<MAPIFolder> StoreFolders::ItemNamed(const std::string& name)
{
    const auto folder = mMailbox->Tree().Child(mParent, name);
    if (folder == 0) {
        throw Failure(Error::ObjectNotFound);
    }
    return mMailbox->Folder(folder);
}

Ref<MAPIFolder> StoreFolders::Add(const std::string& name, DefaultFolder type)
{
    return mMailbox->Folder(mMailbox->Tree().Add(mParent, name, type));
}

}
