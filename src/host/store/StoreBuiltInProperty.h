#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/UserProperties.h"

#include <string>
#include <string_view>

namespace tempodial {

class StoreItem;

/// The start or the duration of an item, or that a person chose its project, in the shape of a user property.
class StoreBuiltInProperty final : public UserProperty
{
public:
    static constexpr std::string_view StartName = "Start";
    static constexpr std::string_view DurationName = "Duration";
    static constexpr std::string_view ProjectByHandName = "ProjectByHand";

    /// The property is one of the names above.
    StoreBuiltInProperty(Ref<StoreItem> item, std::string_view name);

    std::string Name() const override;
    Variant Value() const override;
    void SetValue(const Variant& value) override;

private:
    Ref<StoreItem> mItem;
    std::string_view mName;
};

}
