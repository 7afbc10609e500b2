#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/UserProperties.h"

#include <string>

namespace tempodial {

class StoreItem;

/// The user properties of an item of the mailbox.
class StoreUserProperties final : public UserProperties
{
public:
    explicit StoreUserProperties(Ref<StoreItem> item);

    Ref<UserProperty> Item(const std::string& name) override;
    /// A name that isn't allowed is one that is empty, longer than 64 characters, holds one of [ ] _ # or is "Start" or
    /// "Duration".
    Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) override;

private:
    Ref<StoreItem> mItem;
};

}
