#pragma once

#include "platform/objectmodel/MAPIFolder.h"

#include <string>
#include <vector>

namespace tempodial {

class MailboxDatabase;

/// The tables of a mailbox and their versions.
class MailboxSchema
{
public:
    /// What takes a mailbox from one version to the next: the first step makes version 1 out of nothing.
    static const std::vector<std::string>& Steps();
    /// The version of the tables that this program works with.
    static int Version() { return static_cast<int>(Steps().size()); }
    /// Brings a mailbox up to the last step, all steps or none; throws `MailboxError` for one that is beyond it.
    static void Migrate(MailboxDatabase& database, const std::vector<std::string>& steps);
    /// Throws `MailboxError` unless a mailbox holds the tables and indices that the steps up to its version make, as
    /// they make them, and nothing besides; writes nothing.
    static void Check(MailboxDatabase& database);
    /// True when a mailbox holds what the steps make altogether, told by a fingerprint in a fraction of the time.
    static bool IsToldByFingerprint(MailboxDatabase& database);
    /// The name of the view that a new folder of that kind begins with.
    static std::string FirstViewName(DefaultFolder kind);
    /// The definition of an ordinary view of that name, a calendar in rows of 30 minutes or a table.
    static std::string ViewDefinition(DefaultFolder kind, const std::string& name);
};

}
