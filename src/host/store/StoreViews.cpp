#include "host/store/StoreViews.h"

#include "base/Failure.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreView.h"

#include <cstddef>
#include <utility>

namespace tempodial {

StoreViews::StoreViews(Ref<MailboxStore> store, std::int64_t folder)
    : mStore(std::move(store))
    , mFolder(folder)
{
}

std::int32_t StoreViews::Count()
{
    mStore->Tree().Get(mFolder);
    return static_cast<std::int32_t>(mStore->Views().Of(mFolder).size());
}

Ref<View> StoreViews::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return MakeRef<StoreView>(mStore, mFolder, mStore->Views().Of(mFolder)[static_cast<std::size_t>(index) - 1].name);
}

Ref<View> StoreViews::ItemNamed(const std::string& name)
{
    mStore->Tree().Get(mFolder);
    const auto* view = mStore->Views().Find(mFolder, name);
    return view == nullptr ? nullptr : MakeRef<StoreView>(mStore, mFolder, view->name);
}

Ref<View> StoreViews::Add(const std::string& name, tempodial::ViewType type, ViewSaveOption)
{
    mStore->Tree().Get(mFolder);
    mStore->Views().Add(mFolder, name, type);
    return ItemNamed(name);
}

}
