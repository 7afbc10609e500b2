#pragma once

#include "base/Failure.h"
#include "host/store/ItemData.h"
#include "host/store/PropertyCodec.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct sqlite3_stmt; // NOLINT(readability-identifier-naming): the library names it so
namespace SQLite { // NOLINT(readability-identifier-naming): the library names it so
class Database;
}

namespace tempodial {

/// The connection to the mailbox's file: prepared statements, transactions, and SQLite's errors as failures.
class MailboxDatabase
{
public:
    /// What the file is opened for.
    enum class Access {
        Writing,
        /// Reading beside whoever writes it; nothing but SQLite's own files beside it is written.
        Reading,
        /// Reading where nothing can be written beside it, so that nobody writes it.
        ReadingAlone,
    };

    /// Called when what was written since the last commit of a held transaction has been undone.
    std::function<void()> mOnUndone;

    /// Opens a mailbox's file, or an empty mailbox in memory for ":memory:"; fails as a statement does.
    explicit MailboxDatabase(const std::string& path, Access access = Access::Writing);
    MailboxDatabase(const MailboxDatabase&) = delete;
    MailboxDatabase& operator=(const MailboxDatabase&) = delete;
    ~MailboxDatabase();

    const std::string& Path() const { return mPath; }
    /// Lets the file take up its journal when it is closed; until then closing writes nothing.
    void Trust();
    /// True when the whole file is sound; reads all of it.
    bool IsSound();
    /// Takes all that another holds into this one, an empty mailbox in memory, which goes by its path from then on.
    void TakeCopyOf(MailboxDatabase& other);

    /// Runs statements that take no values.
    void Execute(const std::string& sql);
    /// The whole number that a query without values gives.
    std::int64_t Number(const std::string& sql);
    /// How many rows the last statement that wrote has met.
    int RowsChanged() const;

    /// Runs work whose writes are kept together or not at all.
    template <class Work> void Atomically(Work&& work)
    {
        CheckWhole();
        // Within a held transaction a failure undoes more than this work.
        if (mHeld) {
            work();
            return;
        }
        Execute("BEGIN IMMEDIATE");
        try {
            work();
            Execute("COMMIT");
        } catch (...) {
            RollBack();
            throw;
        }
    }

    /// Begins to hold all writes. A failure undoes what wasn't committed, and from then on every write fails in the
    /// same way until `Recover`.
    void Hold();
    /// Makes the held writes durable and ends the holding.
    void CommitHeld();
    /// Undoes the held writes and ends the holding.
    void DropHeld();
    /// Lets writes go on after held ones were undone.
    void Recover() { mUndone.reset(); }
    /// True while writes are held.
    bool IsHolding() const { return mHeld; }
    /// Fails when nothing may be written: again when held writes were undone, and after trouble for good.
    void CheckWhole() const;

    /// What leaves nothing to be told or written any more: damage, a failing disk, too little memory.
    std::optional<Failure> Trouble() const;
    /// Takes notice of damage in what was read; the failure for it.
    Failure Damaged(const std::string& what);
    /// The user properties that a text of the mailbox stands for; one that can't be read is damage.
    std::vector<ItemProperty> Properties(std::string_view json);
    /// Reads the texts of some of them alone.
    void ReadProperties(std::string_view json, std::span<const WantedText> wanted);

private:
    friend class Query;

    struct Finalizer
    {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };

    sqlite3_stmt* Prepare(const std::string& sql);
    void AddFunctions();
    void RollBack();
    /// True when the system refused for want of room.
    bool IsDiskFull() const;
    Failure Described(int code, const std::string& text) const;
    Failure Failed(int code, const std::string& text);
    /// Takes notice of trouble, after which even closing writes nothing.
    void Note(const Failure& trouble);

    std::string mPath;
    std::unique_ptr<SQLite::Database> mConnection;
    std::unordered_map<std::string, std::unique_ptr<sqlite3_stmt, Finalizer>> mStatements;
    std::size_t mRunning = 0;
    bool mHeld = false;
    std::optional<Failure> mUndone;
    std::optional<Failure> mTrouble;
};

}
