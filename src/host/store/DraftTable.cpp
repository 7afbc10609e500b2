#include "host/store/DraftTable.h"

#include "base/Failure.h"
#include "host/store/EntryIds.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/Query.h"

#include <algorithm>

namespace tempodial {

DraftTable::DraftTable(MailboxDatabase& database)
    : mDatabase(database)
{
}

std::int64_t DraftTable::Save(const MailDraft& draft)
{
    mDatabase.Atomically([&] {
        // The file forgets a row that was undone, while the mail of that row may still be on the screen.
        const auto last = mDatabase.Number("SELECT max(seq) FROM sqlite_sequence WHERE name = 'draft'");
        mLastRow = EntryIds::Next(std::max(mLastRow, last));
        Insert(mLastRow, draft);
    });
    return mLastRow;
}

bool DraftTable::Update(std::int64_t row, const MailDraft& draft)
{
    bool isThere = false;
    mDatabase.Atomically([&] {
        isThere = Remove(row);
        if (isThere) {
            Insert(row, draft);
        }
    });
    return isThere;
}

void DraftTable::Delete(std::int64_t row)
{
    mDatabase.CheckWhole();
    if (!Remove(row)) {
        throw Failure(Error::ObjectNotFound);
    }
}

MailDraft DraftTable::Get(std::int64_t row)
{
    MailDraft draft;
    {
        Query query(mDatabase, "SELECT subject, body, is_html FROM draft WHERE id = ?");
        query.Bind(row);
        if (!query.Step()) {
            throw Failure(Error::ObjectNotFound);
        }
        draft.subject = query.Text(0);
        draft.body = query.Text(1);
        draft.isHtml = query.Int(2) != 0;
    }
    Query recipients(mDatabase,
        "SELECT json_each.value FROM draft, json_each(draft.recipients) WHERE draft.id = ? ORDER BY json_each.key");
    recipients.Bind(row);
    while (recipients.Step()) {
        draft.recipients.push_back(recipients.Text(0));
    }
    Query attachments(mDatabase, "SELECT name, content, type FROM draft_attachment WHERE draft = ? ORDER BY position");
    attachments.Bind(row);
    while (attachments.Step()) {
        draft.attachments.push_back({ attachments.Text(0), attachments.Text(1), attachments.Text(2) });
    }
    return draft;
}

std::vector<std::int64_t> DraftTable::All()
{
    std::vector<std::int64_t> rows;
    Query query(mDatabase, "SELECT id FROM draft ORDER BY id");
    while (query.Step()) {
        rows.push_back(query.Int(0));
    }
    return rows;
}

bool DraftTable::Remove(std::int64_t row)
{
    Query(mDatabase, "DELETE FROM draft WHERE id = ?").Bind(row).Run();
    return mDatabase.RowsChanged() > 0;
}

void DraftTable::Insert(std::int64_t row, const MailDraft& draft)
{
    Query(mDatabase, "INSERT INTO draft (id, subject, body, is_html, recipients) VALUES (?, ?, ?, ?, '[]')")
        .Bind(row)
        .Bind(draft.subject)
        .Bind(draft.body)
        .Bind(std::int64_t { draft.isHtml })
        .Run();
    for (const auto& recipient : draft.recipients) {
        Query(mDatabase, "UPDATE draft SET recipients = json_insert(recipients, '$[#]', ?) WHERE id = ?")
            .Bind(recipient)
            .Bind(row)
            .Run();
    }
    std::int64_t position = 0;
    for (const auto& attachment : draft.attachments) {
        Query(mDatabase, "INSERT INTO draft_attachment (draft, position, name, type, content) VALUES (?, ?, ?, ?, ?)")
            .Bind(row)
            .Bind(++position)
            .Bind(attachment.name)
            .Bind(attachment.type)
            .BindBytes(attachment.content)
            .Run();
    }
}

}
