#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "platform/controls/EventPump.h"

#include <utility>

namespace tempodial {

/// The pending messages of a host without windows: what the mailbox has to tell.
class MailboxEventPump final : public EventPump
{
public:
    explicit MailboxEventPump(Ref<Mailbox> mailbox)
        : mMailbox(std::move(mailbox))
    {
    }

    void ProcessPending() override { mMailbox->DeliverEvents(); }

private:
    Ref<Mailbox> mMailbox;
};

}
