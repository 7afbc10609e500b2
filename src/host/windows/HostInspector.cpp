#include "host/windows/HostInspector.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/Mailbox.h"
#include "host/windows/BuiltInCommand.h"
#include "host/windows/FormPageLayout.h"
#include "host/windows/HostInspectors.h"

namespace tempodial {

namespace {

/// The pages of an item's window: one or none.
class OnePage final : public Pages
{
public:
    explicit OnePage(Ref<HostPage> page)
        : mPage(std::move(page))
    {
    }

    Ref<Page> Item(const std::string& name) override
    {
        if (!mPage || !EqualIgnoringCase(mPage->Layout().name, name)) {
            throw Failure(Error::ObjectNotFound);
        }
        return mPage;
    }

private:
    Ref<HostPage> mPage;
};

}

HostInspector::HostInspector(std::int32_t number, const Ref<Mailbox>& mailbox, const Ref<OutlookItem>& item)
    : mNumber(number)
    , mMailbox(mailbox)
    , mItem(item.As<StoreItem>())
    , mMail(item.As<HostMail>())
    , mKind(mMail ? "Message" : "Appointment")
{
    const auto* form = mItem ? mailbox->FormOf(mItem->MessageClass()) : nullptr;
    if (form == nullptr) {
        return;
    }
    mKind = form->displayName;
    if (auto layout = FormPageLayout::Read(form->page)) {
        mPage = MakeRef<HostPage>(std::move(*layout), *form, mItem);
    }
}

std::string HostInspector::Caption() const
{
    CheckOpen();
    const auto subject = mMail ? mMail->Subject() : mItem->Subject();
    return (subject.empty() ? "Untitled" : subject) + " - " + mKind;
}

Ref<OutlookItem> HostInspector::CurrentItem()
{
    CheckOpen();
    return mMail ? Ref<OutlookItem>(mMail) : Ref<OutlookItem>(mItem);
}

Ref<CommandBars> HostInspector::CommandBars()
{
    CheckOpen();
    return mBars;
}

Ref<Pages> HostInspector::ModifiedFormPages()
{
    CheckOpen();
    return MakeRef<OnePage>(mPage);
}

void HostInspector::Edit(const std::string& control, const Variant& value)
{
    CheckOpen();
    if (!mPage) {
        throw Failure(Error::ObjectNotFound);
    }
    mPage->Control(control)->SetValue(value);
}

bool HostInspector::Save()
{
    CheckOpen();
    const auto self = shared_from_this();
    if (mItem) {
        return mItem->SaveAsPerson();
    }
    mMail->Save();
    mMailbox->CommitHeld();
    return true;
}

bool HostInspector::Close()
{
    CheckOpen();
    const auto self = shared_from_this();
    if (mItem) {
        const bool agreed = mItem->RaiseClose();
        // Handlers may have closed the window already.
        if (!mGone && !agreed) {
            return false;
        }
        if (!mGone) {
            mItem->Discard();
        }
    }
    TakeAway();
    mMailbox->CommitHeld();
    return true;
}

std::vector<Ref<StoreItem>> HostInspector::ItemsBeside(std::int32_t command)
{
    CheckOpen();
    const auto windows = mWindows.lock();
    const auto list = windows ? windows->ForOwner().ItemsBeside : nullptr;
    return list ? list(shared_from_this(), command) : std::vector<Ref<StoreItem>>();
}

bool HostInspector::GoTo(const Ref<StoreItem>& item)
{
    // What is given may be one of those that go with the window.
    const auto next = item; // NOLINT(performance-unnecessary-copy-initialization)
    const auto windows = mWindows.lock();
    if (!Close()) {
        return false;
    }
    if (windows) {
        windows->Show(next);
    }
    return true;
}

void HostInspector::Belong(const std::weak_ptr<HostInspectors>& windows)
{
    mWindows = windows;
    mBars->MakeForInspector([window = weak_from_this(), mailbox = mMailbox](std::int32_t command) {
        if (const auto inspector = window.lock()) {
            inspector->Run(command);
        }
        mailbox->CommitHeld();
    });
    if (mItem) {
        mShown = mItem->SubscribeWindow({ Hearing(&HostInspector::TakeAway), Hearing(&HostInspector::Changed) });
    } else {
        mShown = mMail->SubscribeToChanges({ Hearing(&HostInspector::Changed) });
    }
}

void HostInspector::MarkGone()
{
    mGone = true;
    mShown.End();
    mBars->MarkGone();
    if (mPage) {
        mPage->MarkGone();
    }
    mPage = nullptr;
    mItem = nullptr;
    mMail = nullptr;
    mWindowEvents.Raise(&HostWindowEvents::Ended);
}

void HostInspector::CheckOpen() const
{
    if (mGone) {
        throw Failure(Error::ServerUnavailable);
    }
}

void HostInspector::TakeAway()
{
    if (const auto windows = mWindows.lock()) {
        windows->TakeAway(shared_from_this());
    }
}

void HostInspector::Run(std::int32_t command)
{
    if (mGone) {
        return;
    }
    switch (command) {
    case BuiltInCommand::SaveAndClose:
        if (Save() && !mGone) {
            Close();
        }
        break;
    case BuiltInCommand::Delete:
        if (mItem) {
            // The window goes with its item.
            Ref<StoreItem>(mItem)->Delete();
        } else {
            TakeAway();
        }
        break;
    case BuiltInCommand::PreviousItem:
    case BuiltInCommand::NextItem:
        if (const auto items = ItemsBeside(command); !items.empty()) {
            GoTo(items.front());
        }
        break;
    default:
        RunForOwner(command);
        break;
    }
}

void HostInspector::RunForOwner(std::int32_t command)
{
    const auto windows = mWindows.lock();
    if (const auto run = windows ? windows->ForOwner().InInspector : nullptr) {
        run(shared_from_this(), command);
    }
}

}
