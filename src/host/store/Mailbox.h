#pragma once

#include "base/Ref.h"
#include "host/store/DraftTable.h"
#include "host/store/EntryIds.h"
#include "host/store/FolderTree.h"
#include "host/store/FormTable.h"
#include "host/store/ItemTable.h"
#include "host/store/ViewTable.h"
#include "platform/objectmodel/NameSpace.h"
#include "platform/system/LocaleFormats.h"
#include "platform/system/XmlDocument.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

class MailboxDatabase;
class StoreFolder;
class StoreItem;
class StoreItems;

/// A save that failed.
struct FailedSave
{
    std::string subject;
    std::string message;
};

/// What was saved since a mark; what a failed commit undid doesn't count.
struct SaveStatistics
{
    /// First saves of an item.
    std::int32_t created = 0;
    /// Saves with another end than before.
    std::int32_t extended = 0;
    /// All other saves.
    std::int32_t detailed = 0;
    std::vector<FailedSave> failed;
};

/// A mailbox in one file, or in memory: the store behind the object model. It is used from one thread, and stays open
/// until the last object that came from it is gone.
class Mailbox final : public std::enable_shared_from_this<Mailbox>
{
public:
    /// Opens the mailbox of a file, making a new one where there is none, or a new one in memory for ":memory:". Throws
    /// `MailboxError` for a file that is no mailbox, damaged, of a newer version or not to be used.
    static Ref<Mailbox> Open(const std::string& path, Ref<LocaleFormats> formats, Ref<XmlFactory> xml);

    Mailbox(const Mailbox&) = delete;
    Mailbox& operator=(const Mailbox&) = delete;
    ~Mailbox();

    /// The session that shows this mailbox as its one store.
    Ref<tempodial::NameSpace> NameSpace();
    /// The folder of a path below the store, names joined by "/"; an unknown one fails (-2147221233).
    Ref<MAPIFolder> FolderByPath(const std::string& path);
    /// The path of a folder below the store, names joined by "/".
    std::string PathOf(const Ref<MAPIFolder>& folder);
    /// Renames a folder; fails (457) for a name in use, (5) for one that isn't allowed.
    void RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name);
    /// Moves a folder below another; fails as `RenameFolder` does, and (5) for a move below itself.
    void MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent);
    /// Deletes a folder with all that is in it, for good.
    void DeleteFolder(const Ref<MAPIFolder>& folder);
    /// A stored item by its identity; an unknown one fails (-2147221233).
    Ref<StoreItem> ItemById(const std::string& entryId);
    /// A new unsaved item with everything in it as given.
    Ref<StoreItem> NewItem(const Ref<MAPIFolder>& folder, ItemData data);
    /// A new unsaved item of a form, which it describes.
    Ref<StoreItem> NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form);
    /// Gives a folder's view a definition and saves it, making an absent one.
    void SetView(const Ref<MAPIFolder>& folder, const std::string& name, ViewType type, const std::string& xml);
    /// Deletes a view; an unknown name fails (-2147221233).
    void DeleteView(const Ref<MAPIFolder>& folder, const std::string& name);
    /// The form that shows items of a message class: its own, or that of the nearest class it derives from; null when
    /// they have none but the ordinary one.
    const FormTemplate* FormOf(const std::string& messageClass) const;

    /// What was saved since the last mark.
    const SaveStatistics& Statistics() const { return mStatistics; }
    /// Begins to count anew.
    void MarkStatistics();
    /// Called when an item is to be shown in a window of its own.
    void SetDisplay(std::function<void(const Ref<StoreItem>& item)> display) { mDisplay = std::move(display); }
    /// Makes durable what an import holds, with the position that it has reached, as is due when a person has saved
    /// something; does nothing when nothing is held. A failure undoes what was held.
    void CommitHeld();
    /// Called to commit what is held.
    void SetCommit(std::function<void()> commit) { mCommit = std::move(commit); }
    /// Tells of the items that arrived, and of those that arrive meanwhile; does nothing within itself. Called whenever
    /// the host is idle, pumps events or comes back from the add-in.
    void DeliverEvents();

    // What the objects of the object model share.
    MailboxDatabase& Database() { return *mDatabase; }
    FolderTree& Tree() { return *mTree; }
    ItemTable& Table() { return *mTable; }
    ViewTable& Views() { return *mViews; }
    FormTable& Forms() { return *mForms; }
    DraftTable& Drafts() { return *mDrafts; }
    const EntryIds& Ids() const { return *mIds; }
    LocaleFormats& Formats() { return *mFormats; }
    /// The condition of a filter on a folder; fails as `Items.Restrict` does.
    FilterCondition Condition(std::int64_t folder, const std::string& filter);
    Ref<StoreFolder> Folder(std::int64_t folder);
    /// The row of a folder of this mailbox; fails (-2147221233) for one that is gone.
    std::int64_t RowOf(const Ref<MAPIFolder>& folder) const;
    /// Fails (5) for a text that is no view definition.
    void CheckView(const std::string& xml);
    /// The one live object of a stored item; a row that is gone fails (-2147221233).
    Ref<StoreItem> Item(std::int64_t row);
    /// The one live object of an item just read.
    Ref<StoreItem> Share(StoredItem item);
    /// The live object of a row, nothing when there is none.
    Ref<StoreItem> Live(std::int64_t row) const;
    /// An item object of a row is going away.
    void Forget(std::int64_t row);
    /// Writes an item, counting and announcing it; `refused` is true when a handler was against it, which fails.
    void Save(StoreItem& item, bool refused);
    void Move(StoreItem& item, std::int64_t folder);
    void Delete(StoreItem& item);
    void Display(const Ref<StoreItem>& item);
    void Listen(const Ref<StoreItems>& items);
    /// What is held was committed.
    void Committed();

private:
    Mailbox(std::unique_ptr<MailboxDatabase> database, Ref<LocaleFormats> formats, Ref<XmlFactory> xml);
    static void Create(const std::string& path);
    void Write(StoreItem& item);
    void Announce(const Ref<StoreItem>& item);
    void Touch(StoreItem& item);
    void Undone();

    std::unique_ptr<MailboxDatabase> mDatabase;
    Ref<LocaleFormats> mFormats;
    Ref<XmlFactory> mXml;
    std::unique_ptr<EntryIds> mIds;
    std::unique_ptr<FolderTree> mTree;
    std::unique_ptr<ItemTable> mTable;
    std::unique_ptr<ViewTable> mViews;
    std::unique_ptr<FormTable> mForms;
    std::unique_ptr<DraftTable> mDrafts;
    std::unordered_map<std::int64_t, std::weak_ptr<StoreItem>> mLive;
    std::vector<std::weak_ptr<StoreItems>> mListening;
    std::vector<std::weak_ptr<StoreItem>> mTouched;
    std::function<void(const Ref<StoreItem>& item)> mDisplay;
    std::function<void()> mCommit;
    SaveStatistics mStatistics;
    SaveStatistics mCommittedStatistics;
    bool mDelivering = false;
};

}
