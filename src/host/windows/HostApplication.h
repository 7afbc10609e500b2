#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "host/store/Mailbox.h"
#include "host/windows/HostExplorers.h"
#include "host/windows/HostInspectors.h"
#include "host/windows/HostMail.h"
#include "host/windows/OwnerCommands.h"
#include "host/windows/Person.h"
#include "platform/objectmodel/Application.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// The portable host's stand-in for Outlook: a mailbox with windows onto it. The mailbox's items and the mails made
/// here are displayed in its inspectors.
class HostApplication final : public Application
{
public:
    static constexpr auto DefaultVersion = "16.0.0.1";

    explicit HostApplication(Ref<Mailbox> mailbox, std::string version = DefaultVersion);

    std::string Version() const override { return mVersion; }
    Ref<tempodial::Explorers> Explorers() override { return mExplorers; }
    Ref<tempodial::Inspectors> Inspectors() override { return mInspectors; }
    Ref<NameSpace> GetNamespace(const std::string& type) override;
    Ref<Explorer> ActiveExplorer() override;
    Ref<Inspector> ActiveInspector() override;
    /// A new mail, which stands among the mails on the screen once it is displayed.
    Ref<MailItem> CreateItem() override;
    /// Without a folder the item is to live in the default calendar.
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override;
    Subscription Subscribe(ApplicationEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Subscribes whoever draws the windows on folders.
    Subscription SubscribeToExplorers(HostWindowsEvents<HostExplorer> events);
    /// Subscribes whoever draws the windows on items. One that a handler refused was never on the screen.
    Subscription SubscribeToInspectors(HostWindowsEvents<HostInspector> events);
    /// Sets what is done for built-in commands that windows can't do by themselves.
    void SetOwnerCommands(OwnerCommands commands) { *mOwnerCommands = std::move(commands); }
    /// Tells that the mail session has begun.
    void RaiseMapiLogonComplete();
    /// Tells that the application quits.
    void RaiseQuit();
    /// Opens a window on a folder, with or without its command bars: it is told of, then it comes to the front.
    Ref<HostExplorer> OpenExplorer(const Ref<MAPIFolder>& folder, bool barsReady = true);
    /// Brings a window to the front and tells of it; does nothing with one that is gone.
    void ActivateExplorer(const Ref<HostExplorer>& explorer) { mExplorers->Activate(explorer); }
    /// Closes a window: it counts no more, then it is told of, then it is gone. Does nothing with one that is gone.
    void CloseExplorer(const Ref<HostExplorer>& explorer) { mExplorers->Close(explorer); }
    /// A window is gone, and nobody is told.
    void KillExplorer(const Ref<HostExplorer>& explorer) { mExplorers->Kill(explorer); }
    /// Opens a window on an item, a further one when it has some; nothing when a handler refused it.
    Ref<HostInspector> OpenInspector(const Ref<StoreItem>& item) { return mInspectors->Open(item); }
    /// Opens a window on a mail, which stands among the mails on the screen from then on.
    Ref<HostInspector> OpenMail(const Ref<HostMail>& mail) { return mInspectors->Open(mail); }
    /// The explorers that are open.
    const std::vector<Ref<HostExplorer>>& OpenExplorers() const { return mExplorers->All(); }
    /// The inspectors that are open.
    const std::vector<Ref<HostInspector>>& OpenInspectors() const { return mInspectors->All(); }
    /// Brings an inspector to the front; does nothing with one that is gone.
    void ActivateInspector(const Ref<HostInspector>& inspector) { mInspectors->Activate(inspector); }
    /// The mails on the screen, in the order in which they came up.
    std::vector<Ref<HostMail>> Mails() const;
    /// The mails that anybody holds, on the screen or not, in the order in which they were made.
    std::vector<Ref<HostMail>> MadeMails() const;
    /// What a person does to items without opening them.
    Person User() const { return Person(mMailbox); }

private:
    Ref<Mailbox> mMailbox;
    std::string mVersion;
    Ref<OwnerCommands> mOwnerCommands = MakeRef<OwnerCommands>();
    Ref<HostExplorers> mExplorers;
    Ref<HostInspectors> mInspectors;
    std::int32_t mMailNumbers = 0;
    std::vector<std::weak_ptr<HostMail>> mMails;
    EventSource<ApplicationEvents> mEvents;
};

}
