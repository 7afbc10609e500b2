#include "session/AddInSession.h"

namespace tempodial {

AddInSession::AddInSession(const Ref<Mailbox>& mailbox, Ref<const Platform> platform)
    : mMailbox(mailbox)
    , mApplication(MakeRef<HostApplication>(mailbox))
    , mConnect(std::move(platform))
{
    mApplication->OpenExplorer(mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox));
    mConnect.OnConnection(mApplication, "Tempodial.Connect");
    mApplication->RaiseMapiLogonComplete();
    Settle();
}

AddInSession::~AddInSession()
{
    Settle();
    mConnect.OnDisconnection();
}

}
