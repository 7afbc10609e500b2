#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// Makes an import exactly-once: what the import writes, how far it has come and which lines it has reached are
/// committed together. Where the mailbox can't do that, as on Outlook, it does nothing.
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

    /// True when imports go by the lines that were reached, and stop at what they can't read; false when they go by
    /// the history alone.
    virtual bool Remembers() = 0;
    /// There is no history: the lines of all days are forgotten, but for those that a sync has committed which didn't
    /// come to write it.
    virtual void ForgetLines() = 0;
    /// A day's file is read from its beginning. Answers the last count to go by for lines that weren't reached yet: the
    /// one given, or the one that was given when the first line of this day was reached.
    virtual std::int32_t BeginDay(const std::string& dayKey, std::int32_t lastCount) = 0;
    /// Takes the next line of that file; true when it was reached before, equal lines being told apart by their number.
    virtual bool IsKnown(const std::string& line) = 0;
    /// The line that was asked for last, which isn't known, is dealt with; its number counts from 1. It is remembered
    /// with the next commit.
    virtual void Reached(std::int64_t number, bool isReadable) = 0;
};

}
