#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

class Mailbox;
class MailboxStore;

/// Which lines of the tracker's files imports have reached, day by day. Of each line a hash is kept; lines that are
/// equal are told apart by how many there are.
class LineMemory
{
public:
    explicit LineMemory(const Ref<Mailbox>& mailbox);

    /// Forgets all lines, unless an import has committed some without coming to write the history.
    void ForgetLines();
    /// Forgets days that are older than the newest 60.
    void ForgetOldDays();
    /// Forgets lines of a day, each once for each time that it is named.
    static void Drop(MailboxStore& store, const std::string& dayKey, const std::vector<std::string>& lines);
    /// Begins with a day's file; answers the last count with which its first line was reached, or the one given when
    /// none was.
    std::int32_t BeginDay(const std::string& dayKey, std::int32_t lastCount);
    /// True when the next line of that file was reached before.
    bool IsKnown(const std::string& line);
    /// The line that was asked for last is to be kept.
    void Reached();
    /// Writes what was reached.
    void Keep();
    /// Lets go what was reached and not written.
    void Discard() { mReached.clear(); }

private:
    Ref<MailboxStore> mStore;
    std::string mDay;
    std::int32_t mLastCount = 0;
    /// How often each line that is known still may come in the file in hand.
    std::unordered_map<std::uint64_t, std::int32_t> mKnown;
    std::uint64_t mLine = 0;
    /// Hashes not written yet, as bytes.
    std::string mReached;
};

}
