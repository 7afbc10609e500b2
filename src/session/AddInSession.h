#pragma once

#include "base/Ref.h"
#include "engine/core/Connect.h"
#include "engine/core/TempodialMain.h"
#include "host/store/Mailbox.h"
#include "host/windows/HostApplication.h"
#include "platform/Platform.h"

namespace tempodial {

/// The add-in at work in a host without a screen: connected, logged on, with one explorer on the inbox.
class AddInSession
{
public:
    /// Connects the add-in as a host does.
    AddInSession(const Ref<Mailbox>& mailbox, Ref<const Platform> platform);
    /// Disconnects it.
    ~AddInSession();
    AddInSession(const AddInSession&) = delete;
    AddInSession& operator=(const AddInSession&) = delete;

    /// The add-in's own members.
    TempodialMain& Main() const { return *mConnect.Main(); }
    /// The host that it is connected to.
    const HostApplication& Application() const { return *mApplication; }
    /// Lets the add-in hear what happened in the mailbox; called when a member has returned, as a host is idle then.
    void Settle() { mMailbox->DeliverEvents(); }

private:
    Ref<Mailbox> mMailbox;
    Ref<HostApplication> mApplication;
    Connect mConnect;
};

}
