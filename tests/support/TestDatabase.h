#pragma once

#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "support/TestMailbox.h"

namespace tempodial {

/// The database behind a mailbox, for a test that looks at its rows or lets them be refused.
inline MailboxDatabase& TestDatabase(const Ref<Mailbox>& mailbox)
{
    return mailbox->Store()->Database();
}

/// Lets a mailbox grow no more.
inline void FillDisk(const Ref<Mailbox>& mailbox)
{
    auto& database = TestDatabase(mailbox);
    database.Execute("PRAGMA max_page_count = " + std::to_string(database.Number("PRAGMA page_count")));
}

/// Lets a mailbox grow again.
inline void FreeDisk(const Ref<Mailbox>& mailbox)
{
    TestDatabase(mailbox).Execute("PRAGMA max_page_count = 1000000");
}

}
