#include "host/store/Mailbox.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/FilterSql.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxFile.h"
#include "host/store/MailboxSchema.h"
#include "host/store/Query.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreItem.h"
#include "host/store/StoreItems.h"
#include "host/store/StoreNameSpace.h"

#include <algorithm>
#include <filesystem>
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

Ref<Mailbox> Mailbox::Open(const std::string& path, Ref<LocaleFormats> formats, Ref<XmlFactory> xml)
{
    const bool inMemory = path == ":memory:";
    const auto fullPath = inMemory ? path : std::filesystem::absolute(path).string();
    try {
        bool isDoubtful = false;
        if (!inMemory) {
            const MailboxFile file(fullPath);
            const auto state = file.Examine(MailboxSchema::Version());
            if (state == MailboxFile::State::Absent) {
                Create(fullPath);
            } else {
                isDoubtful = state == MailboxFile::State::Unclean || file.IsSmall();
            }
        }
        auto database = std::make_unique<MailboxDatabase>(fullPath);
        if (isDoubtful && !database->IsSound()) {
            throw Failure(Error::Automation, "the mailbox " + fullPath + " is damaged");
        }
        MailboxSchema::Migrate(*database, MailboxSchema::Steps());
        database->Execute("PRAGMA journal_mode = WAL");
        const std::shared_ptr<Mailbox> mailbox(new Mailbox(std::move(database), std::move(formats), std::move(xml)));
        mailbox->mDatabase->Trust();
        return mailbox;
    } catch (const Failure& failure) {
        const auto& reason = failure.Description();
        const bool isNamed = reason.find(fullPath) != std::string::npos;
        throw MailboxError((isNamed ? reason : "the mailbox " + fullPath + " can't be read (" + reason + ")")
            + ": check the disk and the file's permissions; put a good copy in the place of a damaged mailbox");
    }
}

void Mailbox::Create(const std::string& path)
{
    const MailboxFile file(path);
    try {
        {
            // Without a write-ahead log all of it is in the file once it is committed.
            MailboxDatabase draft(file.NewDraft());
            MailboxSchema::Migrate(draft, MailboxSchema::Steps());
        }
        file.TakeDraft();
    } catch (...) {
        file.RemoveDraft();
        throw;
    }
}

Mailbox::Mailbox(std::unique_ptr<MailboxDatabase> database, Ref<LocaleFormats> formats, Ref<XmlFactory> xml)
    : mDatabase(std::move(database))
    , mFormats(std::move(formats))
    , mXml(std::move(xml))
    , mIds(std::make_unique<EntryIds>(TextOf(*mDatabase, "SELECT id FROM mailbox")))
    , mTree(std::make_unique<FolderTree>(*mDatabase))
    , mTable(std::make_unique<ItemTable>(*mDatabase))
    , mViews(std::make_unique<ViewTable>(*mDatabase))
    , mForms(std::make_unique<FormTable>(*mDatabase))
    , mDrafts(std::make_unique<DraftTable>(*mDatabase))
{
    mDatabase->mOnUndone = [this] { Undone(); };
}

Mailbox::~Mailbox() = default;

Ref<tempodial::NameSpace> Mailbox::NameSpace()
{
    return MakeRef<StoreNameSpace>(shared_from_this());
}

Ref<MAPIFolder> Mailbox::FolderByPath(const std::string& path)
{
    auto folder = mTree->Get(0).children.front();
    for (const auto& name : Split(path, "/")) {
        folder = mTree->Child(folder, name);
        if (folder == 0) {
            throw Failure(Error::ObjectNotFound);
        }
    }
    return Folder(folder);
}

std::string Mailbox::PathOf(const Ref<MAPIFolder>& folder)
{
    std::string path;
    for (auto at = RowOf(folder); mTree->Get(at).parent != 0; at = mTree->Get(at).parent) {
        path.insert(0, (path.empty() ? "" : "/"));
        path.insert(0, mTree->Get(at).name);
    }
    return path;
}

void Mailbox::RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name)
{
    mTree->Rename(RowOf(folder), name);
}

void Mailbox::MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent)
{
    mTree->Move(RowOf(folder), RowOf(parent));
}

void Mailbox::DeleteFolder(const Ref<MAPIFolder>& folder)
{
    const auto subtree = mTree->Subtree(RowOf(folder));
    mDatabase->Atomically([&] {
        mTable->RetireRows();
        mTree->Delete(subtree.front());
    });
    mTable->NoteChange();
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

Ref<StoreItem> Mailbox::ItemById(const std::string& entryId)
{
    return Item(mIds->ItemRow(entryId));
}

Ref<StoreItem> Mailbox::NewItem(const Ref<MAPIFolder>& folder, ItemData data)
{
    return MakeRef<StoreItem>(shared_from_this(), StoredItem { 0, RowOf(folder), std::move(data) });
}

Ref<StoreItem> Mailbox::NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form)
{
    ItemData data;
    data.messageClass = form.messageClass;
    data.properties = form.fields;
    auto item = NewItem(folder, std::move(data));
    item->Describe(form);
    return item;
}

void Mailbox::SetView(const Ref<MAPIFolder>& folder, const std::string& name, ViewType type, const std::string& xml)
{
    const auto row = RowOf(folder);
    CheckView(xml);
    if (mViews->Find(row, name) == nullptr) {
        mViews->Add(row, name, type);
    }
    mViews->Save(row, name, xml);
}

void Mailbox::DeleteView(const Ref<MAPIFolder>& folder, const std::string& name)
{
    mViews->Delete(RowOf(folder), name);
}

const FormTemplate* Mailbox::FormOf(const std::string& messageClass) const
{
    auto candidate = messageClass;
    while (true) {
        if (const auto* form = mForms->Find(candidate)) {
            return form;
        }
        const auto dot = candidate.rfind('.');
        if (dot == std::string::npos) {
            return nullptr;
        }
        candidate.resize(dot);
    }
}

void Mailbox::MarkStatistics()
{
    mStatistics = {};
    mCommittedStatistics = {};
}

void Mailbox::CommitHeld()
{
    if (mDatabase->IsHolding() && mCommit) {
        mCommit();
    }
}

void Mailbox::DeliverEvents()
{
    if (mDelivering) {
        return;
    }
    const FlagGuard delivering(mDelivering);
    const auto self = shared_from_this();
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

FilterCondition Mailbox::Condition(std::int64_t folder, const std::string& filter)
{
    return FilterSql(FilterFields(mTree->Get(folder).fields), mFormats).Condition(FilterParser::Parse(filter));
}

Ref<StoreFolder> Mailbox::Folder(std::int64_t folder)
{
    return MakeRef<StoreFolder>(shared_from_this(), folder);
}

std::int64_t Mailbox::RowOf(const Ref<MAPIFolder>& folder) const
{
    const auto row = mIds->FolderRow(folder->EntryID());
    if (!mTree->Exists(row)) {
        throw Failure(Error::ObjectNotFound);
    }
    return row;
}

void Mailbox::CheckView(const std::string& xml)
{
    const auto document = mXml->NewDocument();
    if (!document->LoadXML(xml) || !document->SelectSingleNode("view")) {
        throw Failure(Error::InvalidCall, "The text is no view definition");
    }
}

Ref<StoreItem> Mailbox::Item(std::int64_t row)
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

Ref<StoreItem> Mailbox::Share(StoredItem item)
{
    const auto row = item.row;
    if (auto live = Live(row)) {
        return live;
    }
    auto shared = MakeRef<StoreItem>(shared_from_this(), std::move(item));
    mLive[row] = shared.Shared();
    return shared;
}

Ref<StoreItem> Mailbox::Live(std::int64_t row) const
{
    const auto known = mLive.find(row);
    return known == mLive.end() ? nullptr : known->second.lock();
}

void Mailbox::Forget(std::int64_t row)
{
    mLive.erase(row);
}

void Mailbox::Save(StoreItem& item, bool refused)
{
    try {
        if (refused) {
            throw Failure(Error::Automation, "The save was refused");
        }
        Write(item);
    } catch (const Failure& failure) {
        mStatistics.failed.push_back({ item.Data().subject, failure.Description() });
        throw;
    }
}

void Mailbox::Move(StoreItem& item, std::int64_t folder)
{
    mTable->Move(item.Row(), folder);
    Touch(item);
    item.MarkMoved(folder);
    Announce(item.shared_from_this());
}

void Mailbox::Delete(StoreItem& item)
{
    if (item.Row() != 0) {
        mTable->Delete(item.Row());
    }
    // Its windows close first, while whoever watched them can still ask which item it was.
    item.RaiseLetGo();
    item.MarkDeleted();
}

void Mailbox::Display(const Ref<StoreItem>& item)
{
    if (mDisplay) {
        mDisplay(item);
    }
}

void Mailbox::Listen(const Ref<StoreItems>& items)
{
    std::erase_if(mListening, [&](const auto& known) { return known.expired() || known.lock() == items.Shared(); });
    mListening.push_back(items.Shared());
}

void Mailbox::Committed()
{
    mTouched.clear();
    mCommittedStatistics = mStatistics;
}

void Mailbox::Write(StoreItem& item)
{
    if (item.Row() == 0) {
        mTree->Get(item.FolderRow());
        item.MarkStored(mTable->Insert(item.FolderRow(), item.Data()));
        mLive[item.Row()] = item.shared_from_this();
        ++mStatistics.created;
        Announce(item.shared_from_this());
    } else {
        const auto* before = item.DataBefore();
        if (before != nullptr && *before != item.Data()) {
            mTable->Update(item.Row(), *before, item.Data());
        } else {
            mDatabase->CheckWhole();
        }
        ++(before != nullptr && before->end != item.Data().end ? mStatistics.extended : mStatistics.detailed);
        item.MarkStored(item.Row());
    }
    Touch(item);
}

void Mailbox::Announce(const Ref<StoreItem>& item)
{
    for (const auto& known : mListening) {
        if (const auto items = known.lock()) {
            items->Arrived(item);
        }
    }
}

void Mailbox::Touch(StoreItem& item)
{
    if (mDatabase->IsHolding()) {
        mTouched.push_back(item.weak_from_this());
    }
}

void Mailbox::Undone()
{
    mTable->NoteChange();
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
