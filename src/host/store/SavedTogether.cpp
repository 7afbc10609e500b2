#include "host/store/SavedTogether.h"

#include "host/store/Mailbox.h"
#include "host/store/MailboxStore.h"

namespace tempodial {

void SavedTogether(const Ref<Mailbox>& mailbox, const std::function<void()>& work)
{
    mailbox->Store()->Together(work);
}

}
