#pragma once

#include "base/Ref.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostCommandBars.h"
#include "host/windows/HostMail.h"
#include "host/windows/HostPage.h"
#include "host/windows/HostWindowEvents.h"
#include "platform/objectmodel/Inspector.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

class HostInspectors;

/// A window of the host that shows an item: an activity with its form's page, an appointment, or a mail.
class HostInspector final : public Inspector, public std::enable_shared_from_this<HostInspector>
{
public:
    /// A window of that number; one that shows an item of the calendar or a mail.
    HostInspector(std::int32_t number, const Ref<Mailbox>& mailbox, const Ref<OutlookItem>& item);

    std::string Caption() const override;
    Ref<OutlookItem> CurrentItem() override;
    Ref<tempodial::CommandBars> CommandBars() override;
    /// The page of the item's form; none for items without a form, or with one whose page can't be read.
    Ref<Pages> ModifiedFormPages() override;
    Subscription Subscribe(InspectorEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Subscribes whoever draws the window, apart from its bars and its page: caption, mail, what is unsaved.
    Subscription SubscribeToChanges(HostWindowEvents events) { return mWindowEvents.Subscribe(std::move(events)); }
    /// The window's number, from 1 and never given again.
    std::int32_t Number() const { return mNumber; }
    /// A person edits a control of the page, as `HostPageControl.SetValue` does; an unknown one fails (-2147221233).
    void Edit(const std::string& control, const Variant& value);
    /// A person saves the item; false when a handler refused it. Fails as the store does.
    bool Save();
    /// A person closes the window: the item is told and may refuse, which is false; what wasn't saved is dropped.
    bool Close();
    /// The items to which Previous Item or Next Item can lead, the nearest first.
    std::vector<Ref<StoreItem>> ItemsBeside(std::int32_t command);
    /// A person goes on to another item: this window closes, and that item's comes to the front. False when a handler
    /// kept this one.
    bool GoTo(const Ref<StoreItem>& item);
    /// The command bars.
    const Ref<HostCommandBars>& Bars() const { return mBars; }
    /// The page, nothing when there is none.
    const Ref<HostPage>& ShownPage() const { return mPage; }
    /// The item of the calendar that it shows, nothing when it shows a mail.
    const Ref<StoreItem>& ShownItem() const { return mItem; }
    /// The mail that it shows, nothing when it shows an item of the calendar.
    const Ref<HostMail>& ShownMail() const { return mMail; }
    /// True once the window is gone.
    bool IsGone() const { return mGone; }

    // What the windows of the application use.
    /// It is one of those windows from now on, and goes when its item does.
    void Belong(const std::weak_ptr<HostInspectors>& windows);
    /// The window has come to the front.
    void RaiseBroughtToFront() const { mWindowEvents.Raise(&HostWindowEvents::BroughtToFront); }
    /// The window is about to be gone.
    void RaiseClose() { mEvents.Raise(&InspectorEvents::Close); }
    /// The window is gone: every member of the object model fails (462) from now on.
    void MarkGone();

private:
    void CheckOpen() const;
    /// Takes the window out of those that are open.
    void TakeAway();
    /// Calls a member of the window when something happens, if it is still there.
    template <class Member> std::function<void()> Hearing(Member member)
    {
        return [window = weak_from_this(), member] {
            if (const auto inspector = window.lock()) {
                (inspector.get()->*member)();
            }
        };
    }
    void Changed() const { mWindowEvents.Raise(&HostWindowEvents::Changed); }
    void Run(std::int32_t command);
    void RunForOwner(std::int32_t command);

    std::int32_t mNumber;
    Ref<Mailbox> mMailbox;
    Ref<StoreItem> mItem;
    Ref<HostMail> mMail;
    /// What kind of item it is, as the caption has it.
    std::string mKind;
    Ref<HostPage> mPage;
    Ref<HostCommandBars> mBars = MakeRef<HostCommandBars>();
    std::weak_ptr<HostInspectors> mWindows;
    /// What the window hears of its item or mail.
    Subscription mShown;
    bool mGone = false;
    EventSource<InspectorEvents> mEvents;
    EventSource<HostWindowEvents> mWindowEvents;
};

}
