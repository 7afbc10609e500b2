#include "host/store/StoreViews.h"

#include "base/Failure.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreView.h"

#include <cstddef>
#include <utility>

namespace tempodial {

StoreViews::StoreViews(Ref<Mailbox> mailbox, std::int64_t folder)
    : mMailbox(std::move(mailbox))
    , mFolder(folder)
{
}

std::int32_t StoreViews::Count()
{
    mMailbox->Tree().Get(mFolder);
    return static_cast<std::int32_t>(mMailbox->Views().Of(mFolder).size());
}

Ref<View> StoreViews::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return MakeRef<StoreView>(
        mMailbox, mFolder, mMailbox->Views().Of(mFolder)[static_cast<std::size_t>(index) - 1].name);
}

Ref<View> StoreViews::ItemNamed(const std::string& name)
{
    mMailbox->Tree().Get(mFolder);
    const auto* view = mMailbox->Views().Find(mFolder, name);
    return view == nullptr ? nullptr : MakeRef<StoreView>(mMailbox, mFolder, view->name);
}

Ref<View> StoreViews::Add(const std::string& name, tempodial::ViewType type, ViewSaveOption)
{
    mMailbox->Tree().Get(mFolder);
    mMailbox->Views().Add(mFolder, name, type);
    return ItemNamed(name);
}

}
