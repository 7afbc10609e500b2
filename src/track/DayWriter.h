#pragma once

#include "slots/DayFile.h"
#include "track/SlotSink.h"
#include "track/WrittenLines.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace tempodial {

/// Writes slots to the files of their days. What is added waits until it is saved, and what can't be saved waits on.
class DayWriter final : public SlotSink
{
public:
    /// Takes the folder of the tracker's files.
    explicit DayWriter(std::string folder)
        : mFolder(std::move(folder))
    {
    }

    std::int64_t WrittenUntil(std::int64_t midnight) override { return DayOf(midnight).file.LastEnd(); }
    void Add(const FiledSlot& slot) override;

    /// True when something waits.
    bool HasUnsaved() const;
    /// Writes what waits, a day at a time, each in one piece; a new file begins with its heading, which says by how
    /// many minutes local time is before UTC. Fails when the disk refuses it.
    void Save(int offset);

    /// Slots in the file of a day.
    int SlotsOn(std::int64_t midnight) { return DayOf(midnight).slots; }
    /// Takes lines out of the file of a day, as `EraseLines` does; fails when it can't be read or replaced.
    ErasedLines Erase(std::int64_t midnight, std::int64_t from, std::int64_t taken);

    /// The path of a day's file.
    std::string PathOf(std::int64_t midnight) const;

private:
    struct Day
    {
        DayFile file;
        int slots = 0;
        /// Whole lines with their ends.
        std::string unsaved;
    };

    Day& DayOf(std::int64_t midnight);
    void SaveDay(std::int64_t midnight, Day& day, int offset) const;

    std::string mFolder;
    std::map<std::int64_t, Day> mDays;
};

}
