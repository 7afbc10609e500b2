#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"

#include <functional>
#include <utility>

namespace tempodial {

/// What a person does to the items of a mailbox without opening them. It is durable at once, during an import
/// too; each fails as the store does.
class Person
{
public:
    explicit Person(Ref<Mailbox> mailbox)
        : mMailbox(std::move(mailbox))
    {
    }

    /// Makes and saves an item in a folder; a folder that is gone fails (-2147221233).
    Ref<StoreItem> Create(const Ref<MAPIFolder>& folder, ItemData data) const;
    /// Drags an item to other times and saves it; false, with nothing changed, when a handler refused it. An end before
    /// the start fails (5) and changes nothing.
    bool Reschedule(const Ref<StoreItem>& item, Date start, Date end) const;
    /// Deletes an item.
    void Delete(const Ref<StoreItem>& item) const;
    /// Does several of these in one commit, all of them or, when the work fails, none; during an import or a
    /// step with what is held there. Fails as the work does.
    void Together(const std::function<void()>& work) const;

private:
    Ref<Mailbox> mMailbox;
};

}
