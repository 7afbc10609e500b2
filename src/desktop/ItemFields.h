#pragma once

#include "base/Ref.h"
#include "base/Variant.h"
#include "review/Activity.h"
#include "session/Profile.h"

#include <string>

namespace tempodial {

class StoreItem;

/// Reads the fields of activities that their rows lack, as they were last saved, from the items themselves; a reader of
/// `FieldValues`. The profile must live as long as this.
class ItemFields
{
public:
    explicit ItemFields(const Profile& profile)
        : mProfile(profile)
    {
    }

    /// The value of a field, nothing when the item has none of that name, or is gone. Fails as the store does.
    Variant operator()(const Activity& activity, const std::string& field);

private:
    const Profile& mProfile;
    /// The item that was read last, since a list asks for several fields of one.
    Ref<StoreItem> mItem;
};

}
