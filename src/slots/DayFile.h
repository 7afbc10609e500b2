#pragma once

#include "base/Date.h"
#include "slots/SlotWords.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// A slot as it comes to a day's file.
struct ActivitySlot
{
    /// Seconds after the day's midnight.
    std::int64_t start = 0;
    std::int64_t end = 0;
    bool continues = false;
    Words words;
    /// What the activity lists besides, of this slot.
    std::vector<std::string> details;
    /// True when its details are told although the activity ends with its first slot.
    bool tellsDetailsAlone = false;
};

/// Writes the lines of one day's file, so that the reader makes of them what they mean: details stand in front of the
/// line that goes on with their activity, led by the activity's own words, and no file ends with one; the first line,
/// and the first behind a gap, goes on with nothing; and a line never ends before the one above it.
class DayFile
{
public:
    /// Takes where the last line that the file has already ends, 0 when it has none.
    explicit DayFile(std::int64_t lastEnd = 0)
        : mLastEnd(lastEnd)
    {
    }

    /// The first line of a day's file; it is no slot. Minutes are those by which local time is before UTC.
    static std::string Heading(Date day, int offsetMinutes);

    /// Adds a slot; false, and nothing is added, when it ends no later than the last line does.
    bool Add(const ActivitySlot& slot);
    /// Adds a time of any length with its own activity; false when it ends before the last line does.
    bool AddExact(std::int64_t start, std::int64_t end, const Words& words);

    /// The lines since they were taken last, without their ends. None of them changes any more.
    std::vector<std::string> TakeLines();
    /// Where the last line ends.
    std::int64_t LastEnd() const { return mLastEnd; }

private:
    /// Details that wait for the next line.
    struct Waiting
    {
        Words words;
        std::vector<std::string> details;
        bool tellsAlone;
    };

    void AddDetails(const Words& words, const std::vector<std::string>& details);
    void AddDetail(const Words& words);

    std::int64_t mLastEnd;
    /// Where the slot ends that the next one may go on with.
    std::optional<std::int64_t> mOpenEnd;
    std::optional<Waiting> mWaiting;
    std::vector<std::string> mLines;
};

}
