#include "host/store/StoreItem.h"

#include "base/Failure.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreFormDescription.h"
#include "host/store/StoreUserProperties.h"

#include <utility>

namespace tempodial {

StoreItem::StoreItem(Ref<MailboxStore> store, StoredItem item)
    : mStore(std::move(store))
    , mRow(item.row)
    , mFolder(item.folder)
    , mData(std::move(item.data))
    , mSaved(item.saved)
{
}

StoreItem::~StoreItem()
{
    if (mRow != 0) {
        mStore->Forget(mRow);
    }
}

ObjectClass StoreItem::Class() const
{
    return Data().kind;
}

std::string StoreItem::MessageClass() const
{
    return Data().messageClass;
}

std::string StoreItem::EntryID() const
{
    CheckAlive();
    return mRow == 0 ? std::string() : mStore->Ids().OfItem(mRow);
}

std::string StoreItem::Subject() const
{
    return Data().subject;
}

void StoreItem::SetSubject(const std::string& subject)
{
    Change([&](ItemData& data) { data.subject = subject; });
}

std::string StoreItem::Body() const
{
    return Data().body;
}

void StoreItem::SetBody(const std::string& body)
{
    Change([&](ItemData& data) { data.body = body; });
}

Date StoreItem::Start() const
{
    return Data().start;
}

void StoreItem::SetStart(Date start)
{
    const auto duration = Duration();
    Change([&](ItemData& data) {
        data.start = start;
        data.end = start.AddMinutes(duration);
    });
}

Date StoreItem::End() const
{
    return Data().end;
}

void StoreItem::SetEnd(Date end)
{
    if (end < Data().start) {
        throw Failure(Error::InvalidCall, "An item can't end before it starts");
    }
    Change([&](ItemData& data) { data.end = end; });
}

std::int32_t StoreItem::Duration() const
{
    return MinutesBetween(Data().start, Data().end);
}

void StoreItem::SetDuration(std::int32_t minutes)
{
    if (minutes < 0) {
        throw Failure(Error::InvalidCall, "A duration can't be negative");
    }
    Change([&](ItemData& data) { data.end = data.start.AddMinutes(minutes); });
}

std::string StoreItem::Mileage() const
{
    return Data().mileage;
}

void StoreItem::SetMileage(const std::string& mileage)
{
    Change([&](ItemData& data) { data.mileage = mileage; });
}

std::string StoreItem::BillingInformation() const
{
    return Data().billingInformation;
}

void StoreItem::SetBillingInformation(const std::string& billingInformation)
{
    Change([&](ItemData& data) { data.billingInformation = billingInformation; });
}

bool StoreItem::IsRecurring() const
{
    return Data().recurring;
}

Ref<MAPIFolder> StoreItem::Parent()
{
    CheckAlive();
    return mStore->Folder(mFolder);
}

Ref<UserProperties> StoreItem::UserProperties()
{
    CheckAlive();
    return MakeRef<StoreUserProperties>(shared_from_this());
}

Ref<FormDescription> StoreItem::FormDescription()
{
    CheckAlive();
    return mFormDescription;
}

void StoreItem::Save()
{
    const auto self = shared_from_this();
    const bool refused = !RaiseWrite();
    mStore->Save(*this, refused);
}

void StoreItem::Close(CloseMode mode)
{
    CheckAlive();
    const auto self = shared_from_this();
    bool cancel = false;
    mEvents.Raise(&AppointmentItemEvents::Close, cancel);
    // A close from code can't be refused.
    if (mDeleted) {
        return;
    }
    if (mode == CloseMode::Save) {
        Save();
    } else {
        Discard();
    }
    RaiseLetGo();
}

void StoreItem::Display()
{
    CheckAlive();
    mStore->Display(shared_from_this());
}

void StoreItem::Delete()
{
    // A window that closes may have been the last to hold it.
    const auto self = shared_from_this();
    CheckAlive();
    mStore->Delete(*this);
}

Ref<AppointmentItem> StoreItem::Copy()
{
    return MakeRef<StoreItem>(mStore, StoredItem { 0, mFolder, Data() });
}

Ref<AppointmentItem> StoreItem::Move(const Ref<MAPIFolder>& folder)
{
    CheckAlive();
    const auto target = mStore->RowOf(folder);
    if (mRow != 0) {
        mStore->Move(*this, target);
    } else {
        const auto before = std::exchange(mFolder, target);
        try {
            Save();
        } catch (...) {
            mFolder = before;
            throw;
        }
    }
    return Ref<StoreItem>(shared_from_this());
}

Subscription StoreItem::Subscribe(AppointmentItemEvents events)
{
    CheckAlive();
    return mEvents.Subscribe(std::move(events));
}

bool StoreItem::RaiseOpen()
{
    CheckAlive();
    const auto self = shared_from_this();
    bool cancel = false;
    mShownProject = mData.mileage;
    mEvents.Raise(&AppointmentItemEvents::Open, cancel);
    return !cancel;
}

bool StoreItem::RaiseClose()
{
    CheckAlive();
    const auto self = shared_from_this();
    bool cancel = false;
    mEvents.Raise(&AppointmentItemEvents::Close, cancel);
    return !cancel;
}

bool StoreItem::SaveAsPerson()
{
    const auto self = shared_from_this();
    if (!RaiseWrite()) {
        return false;
    }
    const auto& former = mBefore ? mBefore->mileage : mRow == 0 ? mShownProject : mData.mileage;
    const auto choice = mStore->Choose(mData.mileage == former ? ProjectChoice::Nobody : ProjectChoice::Person);
    try {
        mStore->Save(*this, false);
    } catch (...) {
        mStore->Choose(choice);
        throw;
    }
    mStore->Choose(choice);
    mStore->CommitHeld();
    return true;
}

void StoreItem::Discard()
{
    CheckAlive();
    if (mBefore) {
        mData = std::move(*mBefore);
        mBefore.reset();
        TellOfChange();
    }
}

Subscription StoreItem::SubscribeWindow(ItemWindowEvents events)
{
    return mWindowEvents.Subscribe(std::move(events));
}

void StoreItem::RaiseLetGo()
{
    const auto self = shared_from_this();
    mWindowEvents.Raise(&ItemWindowEvents::LetGo);
}

void StoreItem::SetProjectByHand(bool isByHand)
{
    Change([&](ItemData& data) { data.isProjectByHand = isByHand; });
}

bool StoreItem::HasChanges() const
{
    return mRow == 0 || (mBefore && *mBefore != mData);
}

LocaleFormats& StoreItem::Formats() const
{
    return mStore->Formats();
}

const ItemData& StoreItem::Data() const
{
    CheckAlive();
    return mData;
}

ItemData& StoreItem::Changing()
{
    CheckAlive();
    if (mRow != 0 && !mBefore) {
        mBefore = mData;
    }
    return mData;
}

void StoreItem::Describe(const FormTemplate& form)
{
    mFormDescription = MakeRef<StoreFormDescription>(mStore, form);
}

void StoreItem::MarkStored(std::int64_t row, std::optional<Date> saved)
{
    mRow = row;
    mSaved = saved;
    mBefore.reset();
    TellOfChange();
}

void StoreItem::MarkDeleted()
{
    if (mRow != 0) {
        mStore->Forget(mRow);
    }
    mRow = 0;
    mDeleted = true;
}

void StoreItem::MarkRestored(StoredItem stored)
{
    mFolder = stored.folder;
    mData = std::move(stored.data);
    mSaved = stored.saved;
    mBefore.reset();
    TellOfChange();
}

void StoreItem::MarkUndone(std::optional<StoredItem> stored)
{
    if (!stored) {
        mStore->Forget(mRow);
        mRow = 0;
        mBefore.reset();
        mSaved.reset();
    } else {
        mFolder = stored->folder;
        mSaved = stored->saved;
        mBefore = std::move(stored->data);
    }
    TellOfChange();
}

void StoreItem::CheckAlive() const
{
    if (mDeleted) {
        throw Failure(Error::ObjectNotFound);
    }
}

bool StoreItem::RaiseWrite()
{
    CheckAlive();
    bool cancel = false;
    mEvents.Raise(&AppointmentItemEvents::Write, cancel);
    CheckAlive();
    return !cancel;
}

}
