#include "host/store/MailboxStore.h"

#include "base/Failure.h"
#include "host/store/FilterSql.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/Query.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreItem.h"
#include "host/store/StoreItems.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

constexpr int DeliveryRounds = 16;

std::string TextOf(MailboxDatabase& database, const std::string& sql)
{
    Query query(database, sql);
    return query.Step() ? query.Text(0) : std::string();
}

/// Sets a flag for as long as it lives.
class FlagGuard
{
public:
    explicit FlagGuard(bool& flag)
        : mFlag(flag)
    {
        mFlag = true;
    }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;
    ~FlagGuard() { mFlag = false; }

private:
    bool& mFlag;
};

}

MailboxStore::MailboxStore(std::unique_ptr<MailboxDatabase> database, Ref<LocaleFormats> formats, Ref<XmlFactory> xml)
    : mDatabase(std::move(database))
    , mFormats(std::move(formats))
    , mXml(std::move(xml))
    , mIds(std::make_unique<EntryIds>(TextOf(*mDatabase, "SELECT id FROM mailbox")))
    , mTree(std::make_unique<FolderTree>(*mDatabase))
    , mTable(std::make_unique<ItemTable>(*mDatabase))
    , mViews(std::make_unique<ViewTable>(*mDatabase))
    , mForms(std::make_unique<FormTable>(*mDatabase))
    , mDrafts(std::make_unique<DraftTable>(*mDatabase))
    , mChanges(std::make_unique<ChangeGathering>(*mIds, *mTree, *mViews))
{
    mDatabase->mOnUndone = [this] { Undone(); };
}

MailboxStore::~MailboxStore() = default;

FilterCondition MailboxStore::Condition(std::int64_t folder, const std::string& filter)
{
    return FilterSql(FilterFields(mTree->Get(folder).fields), mFormats).Condition(FilterParser::Parse(filter));
}

Ref<StoreFolder> MailboxStore::Folder(std::int64_t folder)
{
    return MakeRef<StoreFolder>(shared_from_this(), folder);
}

std::int64_t MailboxStore::RowOf(const Ref<MAPIFolder>& folder) const
{
    const auto row = mIds->FolderRow(folder->EntryID());
    if (!mTree->Exists(row)) {
        throw Failure(Error::ObjectNotFound);
    }
    return row;
}

void MailboxStore::DeleteFolder(std::int64_t folder)
{
    const auto subtree = mTree->Subtree(folder);
    mTree->Delete(folder, [this] { mTable->RetireRows(); });
    NoteForeignChange();
    mViews->Forget();
    // Copied, since an item that goes away takes itself out of the map.
    const auto live = mLive;
    std::vector<Ref<StoreItem>> gone;
    for (const auto& known : live) {
        const auto item = known.second.lock();
        if (item && std::find(subtree.begin(), subtree.end(), item->FolderRow()) != subtree.end()) {
            gone.emplace_back(item);
        }
    }
    for (const auto& item : gone) {
        item->RaiseLetGo();
    }
    for (const auto& item : gone) {
        item->MarkDeleted();
    }
}

void MailboxStore::CheckView(const std::string& xml)
{
    const auto document = mXml->NewDocument();
    if (!document->LoadXML(xml) || !document->SelectSingleNode("view")) {
        throw Failure(Error::InvalidCall, "The text is no view definition");
    }
}

Ref<StoreItem> MailboxStore::Item(std::int64_t row)
{
    if (auto live = Live(row)) {
        return live;
    }
    auto stored = mTable->Load(row);
    if (!stored) {
        throw Failure(Error::ObjectNotFound);
    }
    return Share(std::move(*stored));
}

Ref<StoreItem> MailboxStore::Share(StoredItem item)
{
    const auto row = item.row;
    if (auto live = Live(row)) {
        return live;
    }
    auto shared = MakeRef<StoreItem>(shared_from_this(), std::move(item));
    mLive[row] = shared.Shared();
    return shared;
}

Ref<StoreItem> MailboxStore::Live(std::int64_t row) const
{
    const auto known = mLive.find(row);
    return known == mLive.end() ? nullptr : known->second.lock();
}

void MailboxStore::Forget(std::int64_t row)
{
    mLive.erase(row);
}

void MailboxStore::Save(StoreItem& item, bool refused)
{
    try {
        if (refused) {
            throw Failure(Error::Automation, "The save was refused");
        }
        MarkChoice(item);
        Write(item);
    } catch (const Failure& failure) {
        mStatistics.failed.push_back({ item.Data().subject, failure.Description() });
        throw;
    }
}

void MailboxStore::Move(StoreItem& item, std::int64_t folder)
{
    mTable->Move(item.Row(), folder);
    mChanges->Gone(item.FolderRow(), item.Row());
    mChanges->Saved(folder, item.Row());
    Touch(item);
    item.MarkMoved(folder);
    Announce(item.shared_from_this());
}

void MailboxStore::Delete(StoreItem& item)
{
    if (item.Row() != 0) {
        mTable->Delete(item.Row());
        mChanges->Gone(item.FolderRow(), item.Row());
    }
    // Its windows close first, while whoever watched them can still ask which item it was.
    item.RaiseLetGo();
    item.MarkDeleted();
}

void MailboxStore::NoteForeignChange()
{
    mTable->NoteChange();
    mChanges->Anything();
}

void MailboxStore::Refresh(StoreItem& item)
{
    if (auto stored = mTable->Load(item.Row())) {
        item.MarkRestored(std::move(*stored));
    } else {
        item.RaiseLetGo();
        item.MarkDeleted();
    }
}

void MailboxStore::Display(const Ref<StoreItem>& item)
{
    if (mDisplay) {
        mDisplay(item);
    }
}

void MailboxStore::Listen(const Ref<StoreItems>& items)
{
    std::erase_if(mListening, [&](const auto& known) { return known.expired() || known.lock() == items.Shared(); });
    mListening.push_back(items.Shared());
}

void MailboxStore::DeliverEvents()
{
    const auto self = shared_from_this();
    DeliverArrivals();
    mChanges->Tell();
}

void MailboxStore::DeliverArrivals()
{
    if (mDelivering) {
        return;
    }
    const FlagGuard delivering(mDelivering);
    bool delivered = true;
    for (int round = 0; round < DeliveryRounds && delivered; ++round) {
        delivered = false;
        const auto listening = mListening;
        for (const auto& known : listening) {
            if (const auto items = known.lock()) {
                delivered = items->DeliverArrivals() || delivered;
            }
        }
    }
}

void MailboxStore::CommitHeld()
{
    if (mDatabase->IsHolding() && mCommit && !mTogether) {
        mCommit();
    }
}

void MailboxStore::Together(const std::function<void()>& work)
{
    if (mTogether) {
        work();
        return;
    }
    const bool isHeld = mDatabase->IsHolding();
    if (!isHeld) {
        mDatabase->Hold();
    }
    try {
        {
            const FlagGuard together(mTogether);
            work();
        }
        isHeld ? CommitHeld() : CommitTogether();
    } catch (...) {
        if (!isHeld) {
            if (mDatabase->IsHolding()) {
                mDatabase->DropHeld();
            }
            mDatabase->Recover();
        }
        throw;
    }
}

void MailboxStore::CommitTogether()
{
    mDatabase->CheckWhole();
    // An import that began meanwhile has taken over what was held.
    if (mDatabase->IsHolding()) {
        mDatabase->CommitHeld();
        Committed();
    }
}

void MailboxStore::CommittingImport()
{
    if (mBeforeImportCommit) {
        mBeforeImportCommit();
    }
}

void MailboxStore::Committed()
{
    mTouched.clear();
    mCommittedStatistics = mStatistics;
}

void MailboxStore::MarkStatistics()
{
    mStatistics = {};
    mCommittedStatistics = {};
}

void MailboxStore::Write(StoreItem& item)
{
    const auto saved = mClock ? std::optional(mClock()) : std::nullopt;
    if (item.Row() == 0) {
        mTree->Get(item.FolderRow());
        item.MarkStored(mTable->Insert(item.FolderRow(), item.Data(), saved), saved);
        mLive[item.Row()] = item.shared_from_this();
        mChanges->Saved(item.FolderRow(), item.Row());
        ++mStatistics.created;
        Announce(item.shared_from_this());
    } else {
        const auto* before = item.DataBefore();
        const bool isChanged = before != nullptr && *before != item.Data();
        if (isChanged) {
            mTable->Update(item.Row(), *before, item.Data(), saved);
            mChanges->Saved(item.FolderRow(), item.Row());
        } else {
            mDatabase->CheckWhole();
        }
        ++(isChanged && before->end != item.Data().end ? mStatistics.extended : mStatistics.detailed);
        item.MarkStored(item.Row(), isChanged ? saved : item.SavedAt());
    }
    Touch(item);
}

void MailboxStore::MarkChoice(StoreItem& item) const
{
    const auto* before = item.DataBefore();
    if (mChoice == ProjectChoice::Person) {
        item.SetProjectByHand(true);
    } else if (mChoice == ProjectChoice::Rules && before != nullptr && before->mileage != item.Data().mileage) {
        item.SetProjectByHand(false);
    }
}

void MailboxStore::Announce(const Ref<StoreItem>& item)
{
    for (const auto& known : mListening) {
        if (const auto items = known.lock()) {
            items->Arrived(item);
        }
    }
}

void MailboxStore::Touch(StoreItem& item)
{
    if (mDatabase->IsHolding()) {
        mTouched.push_back(item.weak_from_this());
    }
}

void MailboxStore::Undone()
{
    NoteForeignChange();
    auto failed = std::move(mStatistics.failed);
    mStatistics = mCommittedStatistics;
    mStatistics.failed = std::move(failed);
    const auto touched = std::exchange(mTouched, {});
    for (const auto& known : touched) {
        const auto item = known.lock();
        if (item && item->Row() != 0) {
            item->MarkUndone(mTable->Load(item->Row()));
        }
    }
    mTree->Load();
    mForms->Load();
    mViews->Forget();
}

}
