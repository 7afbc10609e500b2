#pragma once

#include "slots/DayFile.h"
#include "track/SlotSink.h"
#include "track/TrackState.h"
#include "track/WrittenLines.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

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

    /// The lines that wait.
    std::vector<UnsavedLine> Unsaved() const;
    /// Lets lines wait that an earlier run couldn't save, but for those that stand in the file.
    void Restore(const std::vector<UnsavedLine>& unsaved);

    /// Slots in the file of a day.
    int SlotsOn(std::int64_t midnight);
    /// Takes lines out of the file of a day, as `EraseLines` does, and of what waits for it; fails when it can't be
    /// read or replaced. Those of a file that was loaded as a whole stay.
    ErasedLines Erase(std::int64_t midnight, std::int64_t from, std::int64_t taken);

    /// True when a day has a file.
    bool HasFile(std::int64_t midnight) const;
    /// The path of a day's file.
    std::string PathOf(std::int64_t midnight) const;

private:
    struct Day
    {
        DayFile file;
        /// Slots in the file, and those that wait.
        int slots = 0;
        /// Whole lines with their ends.
        std::string unsaved;
    };

    Day& DayOf(std::int64_t midnight);
    void Wait(std::int64_t midnight, const std::string& lines);
    void SaveDay(std::int64_t midnight, Day& day, int offset) const;

    std::string mFolder;
    std::map<std::int64_t, Day> mDays;
};

}
