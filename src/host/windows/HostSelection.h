#pragma once

#include "base/Failure.h"
#include "base/Ref.h"
#include "platform/objectmodel/Selection.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tempodial {

/// What was selected when it was asked for.
class HostSelection final : public Selection
{
public:
    explicit HostSelection(std::vector<Ref<OutlookItem>> items)
        : mItems(std::move(items))
    {
    }

    std::int32_t Count() override { return static_cast<std::int32_t>(mItems.size()); }
    Ref<OutlookItem> Item(std::int32_t index) override
    {
        if (index < 1 || index > Count()) {
            throw Failure(Error::SubscriptOutOfRange);
        }
        return mItems[static_cast<std::size_t>(index) - 1];
    }

private:
    std::vector<Ref<OutlookItem>> mItems;
};

}
