#include "slots/DayFile.h"

#include "base/Number.h"

#include <algorithm>
#include <utility>

namespace tempodial {

std::string DayFile::Heading(Date day, int offsetMinutes)
{
    constexpr int MinutesOfHour = 60;
    const auto parts = day.ToParts();
    const auto minutes = offsetMinutes < 0 ? -offsetMinutes : offsetMinutes;
    return "Tempodial tracker 1, " + Padded(parts.year, 4) + "-" + Padded(parts.month, 2) + "-" + Padded(parts.day, 2)
        + ", " + (offsetMinutes < 0 ? "-" : "+") + Padded(minutes / MinutesOfHour, 2) + ":"
        + Padded(minutes % MinutesOfHour, 2);
}

bool DayFile::Add(const ActivitySlot& slot)
{
    if (slot.end <= mLastEnd) {
        return false;
    }
    const bool continues = slot.continues && mOpenEnd == slot.start;
    const auto waiting = std::exchange(mWaiting, std::nullopt);
    if (continues) {
        auto details = waiting ? waiting->details : std::vector<std::string>();
        details.insert(details.end(), slot.details.begin(), slot.details.end());
        AddDetails(slot.words, details);
    } else if (waiting && waiting->tellsAlone) {
        AddDetails(waiting->words, waiting->details);
    }
    SlotLine line(slot.start, slot.end);
    slot.words.PutInto(line);
    mLines.push_back(continues ? line.Continuation().Text() : line.Text());
    if (!continues && !slot.details.empty()) {
        mWaiting = { slot.words, slot.details, slot.tellsDetailsAlone };
    }
    mLastEnd = slot.end;
    mOpenEnd = slot.end;
    return true;
}

bool DayFile::AddExact(std::int64_t start, std::int64_t end, const Words& words)
{
    if (end < mLastEnd || end <= start) {
        return false;
    }
    mWaiting.reset();
    mOpenEnd.reset();
    SlotLine line(start, end);
    words.PutInto(line);
    mLines.push_back(line.Text());
    mLastEnd = end;
    return true;
}

std::vector<std::string> DayFile::TakeLines()
{
    return std::exchange(mLines, {});
}

void DayFile::AddDetails(const Words& words, const std::vector<std::string>& details)
{
    if (details.empty()) {
        return;
    }
    AddDetail(words);
    for (const auto& detail : details) {
        if (detail != words.text) {
            auto other = words;
            other.text = detail;
            AddDetail(other);
        }
    }
}

void DayFile::AddDetail(const Words& words)
{
    SlotLine line(mLastEnd - SlotSeconds, mLastEnd);
    words.PutInto(line);
    mLines.push_back(line.Detail().Text());
}

}
