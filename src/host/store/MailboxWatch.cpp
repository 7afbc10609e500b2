#include "host/store/MailboxWatch.h"

#include "host/store/Mailbox.h"
#include "host/store/MailboxStore.h"

#include <utility>

namespace tempodial {

MailboxWatch::MailboxWatch(const Ref<Mailbox>& mailbox, MailboxEvents events)
    : mSubscription(mailbox->Store()->Changes().Subscribe(std::move(events)))
{
}

}
