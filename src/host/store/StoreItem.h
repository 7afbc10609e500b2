#pragma once

#include "base/Ref.h"
#include "host/store/FormTemplate.h"
#include "host/store/ItemData.h"
#include "platform/objectmodel/AppointmentItem.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace tempodial {

class LocaleFormats;
class MailboxStore;

/// What happens to an item that a window shows.
struct ItemWindowEvents
{
    /// That is over, as code has closed the item or it was deleted.
    std::function<void()> LetGo;
    /// What it holds has changed, or whether that is saved. It is told while other work goes on, so it is only to be
    /// taken note of.
    std::function<void()> Changed;
};

/// An appointment of the mailbox; there is one object for an item as long as anybody holds it. Once the item is
/// deleted every member fails (-2147221233). What a failed commit undid is undone here too: an item that was first
/// saved since the last commit is unsaved again, and what was changed since then is an unsaved change again; one that
/// was deleted since then stays so, though it is in its folder again.
class StoreItem final : public AppointmentItem, public std::enable_shared_from_this<StoreItem>
{
public:
    StoreItem(Ref<MailboxStore> store, StoredItem item);
    StoreItem(const StoreItem&) = delete;
    StoreItem& operator=(const StoreItem&) = delete;
    ~StoreItem() override;

    ObjectClass Class() const override;
    std::string MessageClass() const override;
    std::string EntryID() const override;
    std::string Subject() const override;
    void SetSubject(const std::string& subject) override;
    std::string Body() const override;
    void SetBody(const std::string& body) override;
    Date Start() const override;
    void SetStart(Date start) override;
    Date End() const override;
    void SetEnd(Date end) override;
    std::int32_t Duration() const override;
    void SetDuration(std::int32_t minutes) override;
    std::string Mileage() const override;
    void SetMileage(const std::string& mileage) override;
    std::string BillingInformation() const override;
    void SetBillingInformation(const std::string& billingInformation) override;
    bool IsRecurring() const override;
    Ref<MAPIFolder> Parent() override;
    Ref<tempodial::UserProperties> UserProperties() override;
    Ref<tempodial::FormDescription> FormDescription() override;
    void Save() override;
    void Close(CloseMode mode) override;
    void Display() override;
    void Delete() override;
    Ref<AppointmentItem> Copy() override;
    Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) override;
    Subscription Subscribe(AppointmentItemEvents events) override;

    /// Raises `Open`, as a window about to show the item does; false when a handler refused it.
    bool RaiseOpen();
    /// Raises `Close`, as a window about to close does; false when a handler refused it.
    bool RaiseClose();
    /// A person saves it: `Write` is raised, another project is that person's choice, and what is held is committed.
    /// False when a handler refused it; fails as the store does.
    bool SaveAsPerson();
    /// Drops what wasn't saved, telling nobody.
    void Discard();
    /// Subscribes a window that shows the item.
    Subscription SubscribeWindow(ItemWindowEvents events);
    /// Tells the windows that show the item that this is over.
    void RaiseLetGo();
    /// The number that it keeps for as long as it is, and that no other item of the mailbox ever has; 0 while it isn't
    /// stored.
    std::int64_t Number() const { return mRow; }
    /// When it was last saved, in UTC; nothing when that isn't known.
    std::optional<Date> SavedAt() const { return mSaved; }
    /// True when a person chose its project.
    bool IsProjectByHand() const { return Data().isProjectByHand; }
    void SetProjectByHand(bool isByHand);
    /// True when something was changed since the last save, or nothing was ever saved.
    bool HasChanges() const;
    /// How texts, dates and numbers are read and written where the mailbox is.
    LocaleFormats& Formats() const;

    // What the mailbox and the item's own objects share.
    const Ref<MailboxStore>& Owner() const { return mStore; }
    /// The row, 0 while the item isn't stored.
    std::int64_t Row() const { return mRow; }
    /// The row of the folder.
    std::int64_t FolderRow() const { return mFolder; }
    /// What the item holds now.
    const ItemData& Data() const;
    /// Changes what the item holds, which stays unsaved.
    template <class Work> void Change(Work&& work)
    {
        work(Changing());
        TellOfChange();
    }
    /// What was last saved, null when nothing was changed since.
    const ItemData* DataBefore() const { return mBefore ? &*mBefore : nullptr; }
    /// True once the item is deleted.
    bool IsDeleted() const { return mDeleted; }
    void Describe(const FormTemplate& form);
    void MarkStored(std::int64_t row, std::optional<Date> saved);
    void MarkMoved(std::int64_t folder) { mFolder = folder; }
    void MarkDeleted();
    /// Takes the stored state in the place of what it held, when it was changed by itself; what wasn't saved is gone.
    void MarkRestored(StoredItem stored);
    /// Takes the stored state after an undone commit: nothing when the item isn't stored any more.
    void MarkUndone(std::optional<StoredItem> stored);

private:
    void CheckAlive() const;
    /// What the item holds, to be changed.
    ItemData& Changing();
    void TellOfChange() const { mWindowEvents.Raise(&ItemWindowEvents::Changed); }
    /// Raises `Write`; false when a handler refused it.
    bool RaiseWrite();

    Ref<MailboxStore> mStore;
    std::int64_t mRow;
    std::int64_t mFolder;
    ItemData mData;
    std::optional<ItemData> mBefore;
    std::optional<Date> mSaved;
    /// The project of an item that was never stored, when a window showed it.
    std::string mShownProject;
    bool mDeleted = false;
    EventSource<AppointmentItemEvents> mEvents;
    EventSource<ItemWindowEvents> mWindowEvents;
    Ref<tempodial::FormDescription> mFormDescription;
};

}
