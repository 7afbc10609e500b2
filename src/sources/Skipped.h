#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace tempodial {

/// What a source held and an import leaves out, counted by reason. The reasons are words of the answer.
class Skipped
{
public:
    static constexpr auto Unreadable = "unreadable";
    static constexpr auto Duplicate = "duplicate";
    static constexpr auto ZeroLength = "zeroLength";
    static constexpr auto TooLong = "tooLong";
    static constexpr auto Cut = "cut";
    static constexpr auto Future = "future";
    static constexpr auto Before1990 = "before1990";
    static constexpr auto Today = "today";
    static constexpr auto Outside = "outside";
    static constexpr auto UnderHalf = "underHalf";
    static constexpr auto NoPresence = "noPresence";
    static constexpr auto Dropped = "dropped";
    static constexpr auto Bucket = "bucket";
    static constexpr auto Hidden = "hidden";
    static constexpr auto AllDay = "allDay";
    static constexpr auto Transparent = "transparent";
    static constexpr auto Cancelled = "cancelled";
    static constexpr auto Declined = "declined";
    static constexpr auto TooDeep = "tooDeep";
    static constexpr auto TooBig = "tooBig";

    void Add(const char* reason, std::int64_t count = 1)
    {
        if (count > 0) {
            mCounts[reason] += count;
        }
    }
    /// Counts a record of a table that can't be read, and remembers its line.
    void AddUnreadable(std::int64_t line)
    {
        Add(Unreadable);
        if (mUnreadableLines.size() < MostLines) {
            mUnreadableLines.insert(line);
        }
    }
    std::int64_t Count(const char* reason) const
    {
        const auto found = mCounts.find(reason);
        return found == mCounts.end() ? 0 : found->second;
    }
    /// The first lines of a table that couldn't be read, in order.
    const std::set<std::int64_t>& UnreadableLines() const { return mUnreadableLines; }
    /// The reasons that there were, with their counts.
    const std::map<std::string, std::int64_t>& Counts() const { return mCounts; }

private:
    static constexpr std::size_t MostLines = 10;

    std::set<std::int64_t> mUnreadableLines;
    std::map<std::string, std::int64_t> mCounts;
};

}
