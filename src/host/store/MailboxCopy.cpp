#include "host/store/MailboxCopy.h"

#include "host/files/FileDescriptor.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/MailboxTrouble.h"
#include "host/store/Query.h"

namespace tempodial {

void CopyMailbox(const Ref<Mailbox>& mailbox, const NativePath& path)
{
    // SQLite would make it readable for others.
    FileDescriptor(path, Opening::New).Close();
    Query(mailbox->Store()->Database(), "VACUUM INTO ?").Bind(path.Text()).Run();
    RequireNoTrouble(mailbox);
}

}
