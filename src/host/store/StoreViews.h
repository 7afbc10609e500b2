#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/Views.h"

#include <cstdint>
#include <string>

namespace tempodial {

class MailboxStore;

/// The views of a folder of the mailbox in the order in which they were made.
class StoreViews final : public Views
{
public:
    StoreViews(Ref<MailboxStore> store, std::int64_t folder);

    std::int32_t Count() override;
    Ref<View> Item(std::int32_t index) override;
    Ref<View> ItemNamed(const std::string& name) override;
    /// A name in use fails (457), an empty one (5). The view is known at once and kept from its first save on.
    Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) override;

private:
    Ref<MailboxStore> mStore;
    std::int64_t mFolder;
};

}
