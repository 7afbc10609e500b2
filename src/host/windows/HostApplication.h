#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "host/store/Mailbox.h"
#include "host/windows/HostExplorers.h"
#include "host/windows/HostInspectors.h"
#include "host/windows/HostMail.h"
#include "platform/objectmodel/Application.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// The portable host's stand-in for Outlook: a mailbox with windows onto it.
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
    Ref<Inspector> ActiveInspector() override { return nullptr; }
    /// A new mail, which stands among the mails on the screen once it is displayed.
    Ref<MailItem> CreateItem() override;
    /// Without a folder the item is to live in the default calendar.
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override;
    Subscription Subscribe(ApplicationEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Tells that the mail session has begun.
    void RaiseMapiLogonComplete();
    /// Tells that the application quits.
    void RaiseQuit();
    /// Opens a window on a folder, in front of the others.
    Ref<HostExplorer> OpenExplorer(const Ref<MAPIFolder>& folder);
    /// The windows that are open.
    HostExplorers& Windows() { return *mExplorers; }
    /// The mails on the screen, in the order in which they came up.
    const std::vector<Ref<HostMail>>& Mails() const { return *mMails; }

private:
    Ref<Mailbox> mMailbox;
    std::string mVersion;
    Ref<HostExplorers> mExplorers = MakeRef<HostExplorers>();
    Ref<HostInspectors> mInspectors = MakeRef<HostInspectors>();
    std::shared_ptr<std::vector<Ref<HostMail>>> mMails = std::make_shared<std::vector<Ref<HostMail>>>();
    EventSource<ApplicationEvents> mEvents;
};

}
