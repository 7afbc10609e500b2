#include "host/store/MailboxTrouble.h"

#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"

namespace tempodial {

void RequireNoTrouble(const Ref<Mailbox>& mailbox)
{
    if (const auto trouble = mailbox->Store()->Database().Trouble()) {
        throw Failure(*trouble);
    }
}

bool IsSound(const Ref<Mailbox>& mailbox)
{
    return mailbox->Store()->Database().IsSound();
}

}
