#pragma once

#include "base/Ref.h"
#include "host/store/ItemTable.h"
#include "platform/objectmodel/Items.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tempodial {

class MailboxStore;
class StoreItem;

/// Items of a folder of the mailbox: all of them, or a fixed list. The list of all is taken anew by `Count` when
/// something has changed; a fixed list stays as it is, and an item of it that is gone fails (-2147221233). Without an
/// order items come as they came into the mailbox, so `Find` gives the one that came first.
class StoreItems final : public Items, public std::enable_shared_from_this<StoreItems>
{
public:
    /// All items of a folder.
    StoreItems(Ref<MailboxStore> store, std::int64_t folder);
    /// A fixed list of rows.
    StoreItems(Ref<MailboxStore> store, std::int64_t folder, std::vector<std::int64_t> rows);

    std::int32_t Count() override;
    Ref<OutlookItem> Item(std::int32_t index) override;
    /// A class outside of "IPM.Appointment" fails (5).
    Ref<AppointmentItem> Add(const std::string& messageClass) override;
    /// A filter that is none or names an unknown property fails (5), one with a value that doesn't fit (13).
    Ref<Items> Restrict(const std::string& filter) override;
    Ref<OutlookItem> Find(const std::string& filter) override;
    /// A property that the folder doesn't know fails (5).
    void Sort(const std::string& property, bool descending) override;
    Subscription Subscribe(ItemsEvents events) override;

    /// Takes note of an item that came into a folder.
    void Arrived(const Ref<StoreItem>& item);
    /// Tells of the items that arrived and are still there; false when there were none.
    bool DeliverArrivals();

private:
    void Take();
    std::vector<std::int64_t> Select(const std::string& filter);
    Ref<StoreItem> Paged(std::size_t index);
    /// Reads items ahead, that of the index among them.
    void ReadPage(std::size_t index);

    Ref<MailboxStore> mStore;
    std::int64_t mFolder;
    bool mFixed;
    ItemOrder mOrder;
    std::optional<std::vector<std::int64_t>> mRows;
    /// Changes to the mailbox when the list of all was taken.
    std::int64_t mTakenAt = 0;
    /// Items read ahead, from a position on; one that was handed out is taken out.
    std::vector<std::optional<StoredItem>> mPage;
    std::size_t mPageStart = 0;
    std::int64_t mPageReadAt = 0;
    std::vector<Ref<StoreItem>> mArrivals;
    EventSource<ItemsEvents> mEvents;
};

}
