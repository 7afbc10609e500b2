#pragma once

#include "base/Date.h"
#include "slots/ActivityWriter.h"
#include "slots/Presence.h"
#include "slots/ViewMaker.h"
#include "sources/ImportLedger.h"
#include "sources/SourceData.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// Which of a source's times an import takes.
struct ImportRange
{
    /// The source's name.
    std::string source;
    /// The days that may be taken, each as its midnight; what has no end is open.
    std::optional<Date> from;
    std::optional<Date> to;
    /// The present moment. Its day isn't over.
    Date now;
    /// True to leave out projects.
    bool withoutProjects = false;
};

/// A day as an import would write it, and what it would leave out.
struct PlannedDay
{
    /// Slots and exact entries to be written; both left out since their time is taken, and since they were written
    /// before.
    std::int64_t slots = 0;
    std::int64_t entries = 0;
    std::int64_t taken = 0;
    std::int64_t before = 0;
    /// Minutes that somebody was there, and that are to be written.
    std::int64_t minutesPresent = 0;
    std::int64_t minutesWritten = 0;
    /// The lines to be written, and how many begin an activity, go on with one and tell a detail.
    std::vector<std::string> lines;
    std::int64_t beginning = 0;
    std::int64_t continuing = 0;
    std::int64_t details = 0;
    /// What the ledger is to hold of it.
    LedgerDay written;

    /// It was planned, and none of it is to be written.
    void LeaveUnwritten() { slots = entries = minutesWritten = 0; }
};

/// Decides what of a source comes to the tracker's files: days that are over, times that nothing has taken, and what no
/// import has written before. Nothing is written here.
class ImportPlan
{
public:
    using Days = std::map<Date, PlannedDay>;

    ImportPlan(ImportRange range, const ViewMaker& views)
        : mRange(std::move(range))
        , mViews(views)
    {
    }

    /// Takes what a source holds. Fails with `BrokenSource` when it holds too many days.
    void Take(SourceData data);
    /// The first and the last day that come into question; nothing when none does.
    std::optional<std::pair<Date, Date>> Span() const;
    /// The days that come into question, each with what is to be written of it: nothing in time that is taken, nothing
    /// that the ledger has.
    Days Make(const Presence& taken, const ImportLedger& ledger) const;

    /// What is left out, whatever is in the log.
    const Skipped& LeftOut() const { return mSkipped; }
    /// What of that has a name, a message each.
    const std::vector<std::string>& Remarks() const { return mRemarks; }

private:
    /// An entry in the words of the log.
    struct Entry
    {
        std::int64_t start, end;
        Words words;

        bool operator==(const Entry&) const = default;
    };

    bool IsInRange(Date day) const;
    /// True for a day in the range that is over and not before all counting.
    bool IsInQuestion(Date day) const;
    /// True for a time that may be taken by its start, which is counted otherwise.
    bool MayBeTaken(std::int64_t start);
    /// What the ledger knows that entry by.
    std::string KeyOf(const Entry& entry) const;
    /// The entries that the ledger has, by their places: known by their times, and where several have the same ones
    /// first by what they say.
    std::vector<bool> WrittenBefore(const ImportLedger& ledger) const;
    void TakeWindows(SourceData& data);
    void TakeEntries(const std::vector<SourceEntry>& entries);

    ImportRange mRange;
    const ViewMaker& mViews;
    Skipped mSkipped;
    std::vector<std::string> mRemarks;
    /// Minutes of presence of each day in question.
    std::map<Date, std::int64_t> mDays;
    std::vector<FiledSlot> mSlots;
    std::vector<Entry> mEntries;
};

}
