#pragma once

#include "platform/system/MailDraft.h"

#include <cstdint>
#include <vector>

namespace tempodial {

class MailboxDatabase;

/// The mails that were kept to be sent later, each named by its row. Every member fails as a statement does.
class DraftTable
{
public:
    explicit DraftTable(MailboxDatabase& database);

    /// Keeps a new draft and answers its row, which no other draft ever had.
    std::int64_t Save(const MailDraft& draft);
    /// Keeps another content of a draft; false when the draft is gone.
    bool Update(std::int64_t row, const MailDraft& draft);
    /// Deletes a draft for good; one that is gone fails (-2147221233).
    void Delete(std::int64_t row);
    /// The draft of a row; one that is gone fails (-2147221233).
    MailDraft Get(std::int64_t row);
    /// The rows of all drafts in the order in which they were first kept.
    std::vector<std::int64_t> All();

private:
    bool Remove(std::int64_t row);
    void Insert(std::int64_t row, const MailDraft& draft);

    MailboxDatabase& mDatabase;
    std::int64_t mLastRow = 0;
};

}
