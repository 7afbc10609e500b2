#pragma once

#include "base/Ref.h"
#include "host/store/ChangeGathering.h"
#include "host/store/DraftTable.h"
#include "host/store/EntryIds.h"
#include "host/store/FolderTree.h"
#include "host/store/FormTable.h"
#include "host/store/ItemTable.h"
#include "host/store/ProjectChoice.h"
#include "host/store/SaveStatistics.h"
#include "host/store/ViewTable.h"
#include "platform/system/LocaleFormats.h"
#include "platform/system/XmlDocument.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tempodial {

class MailboxDatabase;
class StoreFolder;
class StoreItem;
class StoreItems;

/// What the objects of one mailbox share: its tables, its live items, and what is done with them.
class MailboxStore final : public std::enable_shared_from_this<MailboxStore>
{
public:
    MailboxStore(std::unique_ptr<MailboxDatabase> database, Ref<LocaleFormats> formats, Ref<XmlFactory> xml);
    MailboxStore(const MailboxStore&) = delete;
    MailboxStore& operator=(const MailboxStore&) = delete;
    ~MailboxStore();

    MailboxDatabase& Database() { return *mDatabase; }
    FolderTree& Tree() { return *mTree; }
    ItemTable& Table() { return *mTable; }
    ViewTable& Views() { return *mViews; }
    FormTable& Forms() { return *mForms; }
    DraftTable& Drafts() { return *mDrafts; }
    const EntryIds& Ids() const { return *mIds; }
    /// What is told to whoever shows the mailbox.
    ChangeGathering& Changes() { return *mChanges; }
    LocaleFormats& Formats() { return *mFormats; }

    /// The condition of a filter on a folder; fails as `Items.Restrict` does.
    FilterCondition Condition(std::int64_t folder, const std::string& filter);
    Ref<StoreFolder> Folder(std::int64_t folder);
    /// The row of a folder of this mailbox; fails (-2147221233) for one that is gone.
    std::int64_t RowOf(const Ref<MAPIFolder>& folder) const;
    /// Deletes a folder with all that is in it, for good.
    void DeleteFolder(std::int64_t folder);
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
    /// Sets who chooses the projects of items that are saved from now on; answers who did until now.
    ProjectChoice Choose(ProjectChoice choice) { return std::exchange(mChoice, choice); }
    /// Lets items show that a person chose their project, which they don't at first.
    void ShowChoices(bool areShown) { mAreChoicesShown = areShown; }
    bool AreChoicesShown() const { return mAreChoicesShown; }
    void Move(StoreItem& item, std::int64_t folder);
    void Delete(StoreItem& item);
    /// Rows were changed of which it isn't known which they are.
    void NoteForeignChange();
    /// Takes in that an item's row was changed by itself.
    void Refresh(StoreItem& item);
    void Display(const Ref<StoreItem>& item);
    void SetDisplay(std::function<void(const Ref<StoreItem>& item)> display) { mDisplay = std::move(display); }

    /// Items of a folder want to hear of those that arrive.
    void Listen(const Ref<StoreItems>& items);
    /// Tells of the items that arrived, and of those that arrive meanwhile, which does nothing within itself; then of
    /// what changed.
    void DeliverEvents();

    /// Asks whoever holds writes to commit them; does nothing when none are held.
    void CommitHeld();
    /// Does work in which nothing asks for that, and does it then; what nobody else holds is held for the work.
    void Together(const std::function<void()>& work);
    /// Called to ask for the present moment in UTC at each save; without it no item knows when it was saved.
    void SetClock(std::function<Date()> clock) { mClock = std::move(clock); }
    /// Called to commit what is held.
    void SetCommit(std::function<void()> commit) { mCommit = std::move(commit); }
    /// Called before what an import has written is committed, to write what belongs to it.
    void SetBeforeImportCommit(std::function<void()> work) { mBeforeImportCommit = std::move(work); }
    /// What an import has written is about to be committed; fails as a statement does.
    void CommittingImport();
    /// What is held was committed.
    void Committed();
    const SaveStatistics& Statistics() const { return mStatistics; }
    void MarkStatistics();

private:
    void Write(StoreItem& item);
    void MarkChoice(StoreItem& item) const;
    void Announce(const Ref<StoreItem>& item);
    void DeliverArrivals();
    void CommitTogether();
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
    std::unique_ptr<ChangeGathering> mChanges;
    std::unordered_map<std::int64_t, std::weak_ptr<StoreItem>> mLive;
    std::vector<std::weak_ptr<StoreItems>> mListening;
    std::vector<std::weak_ptr<StoreItem>> mTouched;
    std::function<void(const Ref<StoreItem>& item)> mDisplay;
    std::function<void()> mCommit;
    std::function<void()> mBeforeImportCommit;
    std::function<Date()> mClock;
    SaveStatistics mStatistics;
    SaveStatistics mCommittedStatistics;
    ProjectChoice mChoice = ProjectChoice::Rules;
    bool mAreChoicesShown = false;
    bool mDelivering = false;
    bool mTogether = false;
};

}
