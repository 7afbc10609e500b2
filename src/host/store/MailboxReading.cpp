#include "host/store/MailboxReading.h"

#include "base/Failure.h"
#include "host/files/PathOperations.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxFile.h"
#include "host/store/MailboxSchema.h"
#include "host/store/MailboxStore.h"

#include <memory>
#include <utility>

namespace tempodial {

namespace {

using Access = MailboxDatabase::Access;

std::unique_ptr<MailboxDatabase> NewInMemory()
{
    return std::make_unique<MailboxDatabase>(":memory:");
}

/// The mailbox of a file with the tables that this program works with: those of an older one are brought up to date in
/// a copy of it in memory.
std::unique_ptr<MailboxDatabase> Read(const std::string& path, bool isDoubtful)
{
    const bool isAlone = MailboxFile(path).IsAlone();
    auto database = std::make_unique<MailboxDatabase>(path, isAlone ? Access::ReadingAlone : Access::Reading);
    // All that is read is of one moment, whatever others commit meanwhile.
    database->Execute("BEGIN");
    if (isDoubtful && !database->IsSound()) {
        throw Failure(Error::Automation, "the mailbox " + path + " is damaged");
    }
    MailboxSchema::Check(*database);
    if (database->Number("PRAGMA user_version") < MailboxSchema::Version()) {
        auto copy = NewInMemory();
        copy->TakeCopyOf(*database);
        database = std::move(copy);
    }
    return database;
}

}

Ref<Mailbox> OpenMailboxForReading(
    const std::string& path, Ref<LocaleFormats> formats, Ref<XmlFactory> xml, bool isHeld)
{
    const auto fullPath = AbsolutePath(path).Text();
    try {
        const MailboxFile file(fullPath);
        const auto state = file.Examine(MailboxSchema::Version(), true);
        const bool isDoubtful = file.IsSmall() || (state == MailboxFile::State::Unclean && !isHeld);
        auto database = state == MailboxFile::State::Absent ? NewInMemory() : Read(fullPath, isDoubtful);
        MailboxSchema::Migrate(*database, MailboxSchema::Steps());
        database->Execute("PRAGMA query_only = ON");
        return MakeRef<Mailbox>(MakeRef<MailboxStore>(std::move(database), std::move(formats), std::move(xml)));
    } catch (const Failure& failure) {
        throw MailboxError::Of(fullPath, failure);
    }
}

}
