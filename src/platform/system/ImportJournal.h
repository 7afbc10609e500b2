#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// Makes an import exactly-once: what the import writes and how far it has come are committed together. Where the
/// mailbox can't do that, as on Outlook, it does nothing.
class ImportJournal
{
public:
    /// How far a day's file has been loaded.
    struct Position
    {
        /// End of the last line loaded, in seconds after midnight, as the history keeps it.
        std::int32_t count = 0;
        /// Lines read behind the first, loaded or not.
        std::int64_t lines = 0;
    };

    virtual ~ImportJournal() = default;

    /// A sync begins: from now on writes to the mailbox are held until the next commit. Fails when the store refuses.
    virtual void Begin() = 0;
    /// A line of a day was loaded up to that position; commits now and then. Fails when a commit failed, and what was
    /// written since the last one is undone.
    virtual void Loaded(const std::string& dayKey, const Position& position) = 0;
    /// Makes what was written durable, together with the positions. Fails when that failed, and what was written since
    /// the last commit is undone.
    virtual void Commit() = 0;
    /// The position committed for a day that never reached the history file; nothing when there is none.
    virtual std::optional<Position> Committed(const std::string& dayKey) = 0;
    /// The history file that holds the counts is safe on disk: the positions are forgotten.
    virtual void HistorySaved() = 0;
    /// The sync ends: writes are durable one by one again. What wasn't committed is committed.
    virtual void End() = 0;
};

}
