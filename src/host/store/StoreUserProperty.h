#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/UserProperties.h"

#include <string>

namespace tempodial {

class StoreItem;

/// A user property of an item of the mailbox; it fails (-2147221233) once the item has lost it.
class StoreUserProperty final : public UserProperty
{
public:
    StoreUserProperty(Ref<StoreItem> item, std::string name);

    std::string Name() const override;
    Variant Value() const override;
    void SetValue(const Variant& value) override;

private:
    Ref<StoreItem> mItem;
    std::string mName;
};

}
