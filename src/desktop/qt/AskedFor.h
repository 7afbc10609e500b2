#pragma once

#include "desktop/qt/PaintedCell.h"

#include <map>

namespace tempodial {

/// The cells that assistive programs asked for, by what they stand for: none is made before, and none stands for
/// anything else later.
template <typename Key> class AskedFor
{
public:
    AskedFor() = default;
    ~AskedFor()
    {
        DropIf([](const Key&) { return true; });
    }
    AskedFor(const AskedFor&) = delete;
    AskedFor& operator=(const AskedFor&) = delete;

    /// That of a key, which `make` makes when it wasn't asked for yet.
    template <typename Make> QAccessibleInterface* Get(const Key& key, const Make& make)
    {
        const auto known = mIds.find(key);
        if (known != mIds.end()) {
            return QAccessible::accessibleInterface(known->second);
        }
        PaintedCell* made = make();
        mIds.emplace(key, QAccessible::registerAccessibleInterface(made));
        made->TellChanges();
        return made;
    }

    /// Lets go of those for whose key `goes` is true.
    template <typename Goes> void DropIf(const Goes& goes)
    {
        for (auto entry = mIds.begin(); entry != mIds.end();) {
            if (goes(entry->first)) {
                QAccessible::deleteAccessibleInterface(entry->second);
                entry = mIds.erase(entry);
            } else {
                ++entry;
            }
        }
    }

    /// Calls `each` with each key and its cell.
    template <typename Each> void ForEach(const Each& each) const
    {
        for (const auto& [key, id] : mIds) {
            each(key, static_cast<PaintedCell&>(*QAccessible::accessibleInterface(id)));
        }
    }

private:
    std::map<Key, QAccessible::Id> mIds;
};

}
