#include "host/store/Mailbox.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/files/PathOperations.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxFile.h"
#include "host/store/MailboxSchema.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreItem.h"
#include "host/store/StoreNameSpace.h"

#include <memory>
#include <utility>

namespace tempodial {

namespace {

void Create(const std::string& path)
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

}

Ref<Mailbox> Mailbox::Open(const std::string& path, Ref<LocaleFormats> formats, Ref<XmlFactory> xml)
{
    const bool inMemory = path == ":memory:";
    const auto fullPath = inMemory ? path : AbsolutePath(path).Text();
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
        if (!inMemory) {
            MailboxSchema::Check(*database);
        }
        MailboxSchema::Migrate(*database, MailboxSchema::Steps());
        database->Execute("PRAGMA journal_mode = WAL");
        const auto store = MakeRef<MailboxStore>(std::move(database), std::move(formats), std::move(xml));
        store->Database().Trust();
        return MakeRef<Mailbox>(store);
    } catch (const Failure& failure) {
        throw MailboxError::Of(fullPath, failure);
    }
}

Mailbox::Mailbox(Ref<MailboxStore> store)
    : mStore(std::move(store))
{
}

Ref<tempodial::NameSpace> Mailbox::NameSpace()
{
    return MakeRef<StoreNameSpace>(mStore);
}

Ref<MAPIFolder> Mailbox::FolderByPath(const std::string& path)
{
    const auto& tree = mStore->Tree();
    auto folder = tree.Get(0).children.front();
    for (const auto& name : Split(path, "/")) {
        folder = tree.Child(folder, name);
        if (folder == 0) {
            throw Failure(Error::ObjectNotFound);
        }
    }
    return mStore->Folder(folder);
}

std::string Mailbox::PathOf(const Ref<MAPIFolder>& folder)
{
    const auto& tree = mStore->Tree();
    std::string path;
    for (auto at = mStore->RowOf(folder); tree.Get(at).parent != 0; at = tree.Get(at).parent) {
        path.insert(0, (path.empty() ? "" : "/"));
        path.insert(0, tree.Get(at).name);
    }
    return path;
}

Ref<StoreFolder> Mailbox::Own(const Ref<MAPIFolder>& folder)
{
    return mStore->Folder(mStore->RowOf(folder));
}

void Mailbox::RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name)
{
    mStore->Tree().Rename(mStore->RowOf(folder), name);
}

void Mailbox::MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent)
{
    mStore->Tree().Move(mStore->RowOf(folder), mStore->RowOf(parent));
}

void Mailbox::DeleteFolder(const Ref<MAPIFolder>& folder)
{
    mStore->DeleteFolder(mStore->RowOf(folder));
}

Ref<StoreItem> Mailbox::ItemById(const std::string& entryId)
{
    return mStore->Item(mStore->Ids().ItemRow(entryId));
}

Ref<StoreItem> Mailbox::NewItem(const Ref<MAPIFolder>& folder, ItemData data)
{
    return MakeRef<StoreItem>(mStore, StoredItem { 0, mStore->RowOf(folder), std::move(data) });
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

ItemData Mailbox::Stored(const Ref<StoreItem>& item)
{
    auto stored = mStore->Table().Load(item->Row());
    if (!stored) {
        throw Failure(Error::ObjectNotFound);
    }
    return std::move(stored->data);
}

void Mailbox::SetView(const Ref<MAPIFolder>& folder, const std::string& name, ViewType type, const std::string& xml)
{
    const auto row = mStore->RowOf(folder);
    mStore->CheckView(xml);
    mStore->Views().Set(row, name, type, xml);
}

void Mailbox::DeleteView(const Ref<MAPIFolder>& folder, const std::string& name)
{
    mStore->Views().Delete(mStore->RowOf(folder), name);
}

const FormTemplate* Mailbox::FormOf(const std::string& messageClass) const
{
    return mStore->Forms().Nearest(messageClass);
}

DraftTable& Mailbox::Drafts()
{
    return mStore->Drafts();
}

std::string Mailbox::DraftId(std::int64_t row) const
{
    return mStore->Ids().OfDraft(row);
}

const SaveStatistics& Mailbox::Statistics() const
{
    return mStore->Statistics();
}

void Mailbox::MarkStatistics()
{
    mStore->MarkStatistics();
}

void Mailbox::SetClock(std::function<Date()> clock)
{
    mStore->SetClock(std::move(clock));
}

void Mailbox::ChoosingProjects(ProjectChoice choice, const std::function<void()>& work)
{
    const auto former = mStore->Choose(choice);
    try {
        work();
    } catch (...) {
        mStore->Choose(former);
        throw;
    }
    mStore->Choose(former);
}

void Mailbox::SetDisplay(std::function<void(const Ref<StoreItem>& item)> display)
{
    mStore->SetDisplay(std::move(display));
}

void Mailbox::CommitHeld()
{
    mStore->CommitHeld();
}

void Mailbox::DeliverEvents()
{
    mStore->DeliverEvents();
}

}
