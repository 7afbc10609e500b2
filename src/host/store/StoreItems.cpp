#include "host/store/StoreItems.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreItem.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace tempodial {

namespace {

constexpr std::string_view BaseClass = "IPM.Appointment";
constexpr std::size_t FirstPage = 16;
constexpr std::size_t LargestPage = 256;

bool IsAppointmentClass(const std::string& messageClass)
{
    const auto head = messageClass.substr(0, BaseClass.size());
    return EqualIgnoringCase(head, BaseClass)
        && (messageClass.size() == BaseClass.size() || messageClass[BaseClass.size()] == '.');
}

}

StoreItems::StoreItems(Ref<MailboxStore> store, std::int64_t folder)
    : mStore(std::move(store))
    , mFolder(folder)
    , mFixed(false)
{
}

StoreItems::StoreItems(Ref<MailboxStore> store, std::int64_t folder, std::vector<std::int64_t> rows)
    : mStore(std::move(store))
    , mFolder(folder)
    , mFixed(true)
    , mRows(std::move(rows))
{
}

std::int32_t StoreItems::Count()
{
    mStore->Tree().Get(mFolder);
    if (!mFixed && mTakenAt != mStore->Table().Changes()) {
        mRows.reset();
    }
    Take();
    return static_cast<std::int32_t>(mRows->size());
}

Ref<OutlookItem> StoreItems::Item(std::int32_t index)
{
    mStore->Tree().Get(mFolder);
    Take();
    if (index < 1 || static_cast<std::size_t>(index) > mRows->size()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return Paged(static_cast<std::size_t>(index) - 1);
}

Ref<AppointmentItem> StoreItems::Add(const std::string& messageClass)
{
    if (!IsAppointmentClass(messageClass)) {
        throw Failure(Error::InvalidCall, "There are no items of the class \"" + messageClass + "\"");
    }
    ItemData data;
    data.messageClass = BaseClass;
    if (const auto* form = mStore->Forms().Nearest(messageClass)) {
        data.messageClass = form->messageClass;
        data.properties = form->fields;
        // The folder must know them as if they had been added one by one, since filters name them.
        for (const auto& field : form->fields) {
            mStore->Tree().AddField(mFolder, field.name, field.type);
        }
    }
    mStore->Tree().Get(mFolder);
    return MakeRef<StoreItem>(mStore, StoredItem { 0, mFolder, std::move(data) });
}

Ref<Items> StoreItems::Restrict(const std::string& filter)
{
    return MakeRef<StoreItems>(mStore, mFolder, Select(filter));
}

Ref<OutlookItem> StoreItems::Find(const std::string& filter)
{
    std::int64_t row = 0;
    if (mFixed || mOrder.field) {
        const auto rows = Select(filter);
        row = rows.empty() ? 0 : rows.front();
    } else {
        row = mStore->Table().First(mFolder, mStore->Condition(mFolder, filter));
    }
    return row == 0 ? nullptr : mStore->Item(row);
}

void StoreItems::Sort(const std::string& property, bool descending)
{
    const FilterFields fields(mStore->Tree().Get(mFolder).fields);
    ItemOrder order { fields.Field(FilterParser::PropertyName(property)), descending };
    mRows = mFixed ? mStore->Table().Sorted(*mRows, order) : mStore->Table().All(mFolder, order);
    mTakenAt = mStore->Table().Changes();
    mOrder = std::move(order);
    mPage.clear();
}

Subscription StoreItems::Subscribe(ItemsEvents events)
{
    mStore->Listen(shared_from_this());
    return mEvents.Subscribe(std::move(events));
}

void StoreItems::Arrived(const Ref<StoreItem>& item)
{
    if (item->FolderRow() == mFolder) {
        mArrivals.push_back(item);
    }
}

bool StoreItems::DeliverArrivals()
{
    const auto self = shared_from_this();
    const auto arrivals = std::exchange(mArrivals, {});
    for (const auto& item : arrivals) {
        // A deleted item has no row any more, and one whose save was undone hasn't one either.
        if (item->Row() != 0 && item->FolderRow() == mFolder) {
            mEvents.Raise(&ItemsEvents::ItemAdd, Ref<OutlookItem>(item));
        }
    }
    return !arrivals.empty();
}

void StoreItems::Take()
{
    if (!mRows) {
        mRows = mStore->Table().All(mFolder, mOrder);
        mTakenAt = mStore->Table().Changes();
        mPage.clear();
    }
}

std::vector<std::int64_t> StoreItems::Select(const std::string& filter)
{
    auto rows = mStore->Table().Select(mFolder, mStore->Condition(mFolder, filter));
    if (!mFixed) {
        return mOrder.field ? mStore->Table().Sorted(rows, mOrder) : rows;
    }
    const std::unordered_set<std::int64_t> selected(rows.begin(), rows.end());
    std::vector<std::int64_t> kept;
    std::copy_if(mRows->begin(), mRows->end(), std::back_inserter(kept),
        [&](std::int64_t row) { return selected.contains(row); });
    return kept;
}

Ref<StoreItem> StoreItems::Paged(std::size_t index)
{
    const auto row = (*mRows)[index];
    if (auto live = mStore->Live(row)) {
        return live;
    }
    const bool within = index >= mPageStart && index < mPageStart + mPage.size();
    if (within && mPage[index - mPageStart] && mPageReadAt != mStore->Table().Changes()) {
        // The page may be out of date, as in a walk that saves what it visits: this row alone is read again.
        return mStore->Item(row);
    }
    if (!within || !mPage[index - mPageStart]) {
        ReadPage(index);
    }
    auto& slot = mPage[index - mPageStart];
    if (!slot) {
        throw Failure(Error::ObjectNotFound);
    }
    auto item = std::move(*slot);
    slot.reset();
    return mStore->Share(std::move(item));
}

void StoreItems::ReadPage(std::size_t index)
{
    // A walk in either direction gets longer and longer pages, a single look a short one.
    const bool forward = !mPage.empty() && index == mPageStart + mPage.size();
    const bool backward = !mPage.empty() && index + 1 == mPageStart;
    auto length = forward || backward ? std::min(mPage.size() * 2, LargestPage) : FirstPage;
    const auto start = backward ? index + 1 - std::min(length, index + 1) : index;
    length = std::min(length, mRows->size() - start);

    const std::span<const std::int64_t> wanted(mRows->data() + start, length);
    mPage = mStore->Table().Load(wanted);
    mPageStart = start;
    mPageReadAt = mStore->Table().Changes();
}

}
