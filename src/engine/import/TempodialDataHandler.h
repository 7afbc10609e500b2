#pragma once

#include "engine/foundation/TracedObject.h"
#include "engine/import/HistoryText.h"
#include "engine/import/SlotActivity.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/NameSpace.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

class Application;
class ProgressBarForm;
class TempodialMain;

/// The import: reads the tracker's file of each day and feeds the work log, line by line.
class TempodialDataHandler final : public TracedObject, public std::enable_shared_from_this<TempodialDataHandler>
{
public:
    explicit TempodialDataHandler(Ref<const Platform> platform);

    /// Stores the main object and the log; the application and the session are accepted and not kept.
    void Initialize(const Ref<TempodialMain>& main, const Ref<Application>& appObject, const Ref<NameSpace>& nsObject,
        const Ref<TempodialDebugLog>& logObj);
    /// Lets its references go, at the end of the sync when one is under way, which then stops as if cancelled.
    void Terminate();

    /// Imports the files of today and that many days before. Unless forced it does nothing within 20 seconds after the
    /// last import, and never while one is under way.
    void SyncData(std::int32_t loadRange, bool forceSync);

    /// What a parsed line of a day's file says. Times that can't be read stay as they were.
    void ExtractData(const Ref<XmlNode>& objXML, Date dayDate, SlotActivity& activity);
    /// The text in double quotes, unless it is empty or "None".
    std::string wrapped(const std::string& towrap);
    /// A window's caption without the name of its application.
    std::string StripAppInfo(const std::string& description, const std::string& application);

private:
    /// One day of a sync.
    struct DayFile
    {
        /// Days before today.
        std::int32_t daysBack = 0;
        Date day;
        std::string key;
        std::string livePath;
        std::string finishedPath;
        /// How far the file was loaded by an earlier run that didn't come to write the history.
        std::optional<ImportJournal::Position> committed;
    };
    /// What a sync carries from day to day.
    struct Sync
    {
        Ref<ProgressBarForm> progress;
        Date today;
        std::int32_t loadRange = 0;
        std::string dataFolder;
        HistoryText history;
        /// The day's last count by the history, -1 for none.
        std::int32_t lastCount = 0;
        std::string todayEntry;
        bool notCancelled = true;
        /// Only the journal knows how far some day was loaded that this sync didn't come to.
        bool journalNeeded = false;
    };

    /// What stands in a line.
    enum class LineContent { NoDocument, SlotWithoutTimes, Slot };
    /// What there is of a history.
    enum class HistoryFile { Absent, Readable, Unreadable };

    HistoryFile ReadHistory(
        const Attempt& attempt, const std::string& path, Ref<TextStream>& stream, HistoryText& history);
    void WriteHistory(const Attempt& attempt, const std::string& path, const Ref<TextStream>& oldStream, Sync& sync);
    DayFile DayOf(const Attempt& attempt, const Sync& sync, std::int32_t daysBack) const;
    void SyncDay(const Attempt& attempt, Sync& sync, std::int32_t daysBack);
    /// Takes the day's last count from the history; the result is the position of its entry, 0 for none.
    std::int32_t FindLastCount(const Attempt& attempt, Sync& sync, const std::string& dayKey);
    /// Gives a past day's file its finished name and takes the day out of the history.
    void FinishDay(const Attempt& attempt, Sync& sync, const DayFile& day, std::int32_t position);
    /// Notes in the history how far the file of a day that isn't finished was loaded.
    void KeepCount(const Attempt& attempt, Sync& sync, const DayFile& day, std::int32_t position);
    /// Passes over a day that can't be read or isn't come to, without losing what the journal knows of it.
    void LeaveDay(const Attempt& attempt, Sync& sync, const DayFile& day);
    /// Commits what the import has written; when that fails it goes back to the last commit and answers false.
    bool Commit(const Attempt& attempt, const std::string& dayKey);
    /// The same every second or 1,000 lines. It is called where no later line depends on the item in hand, so that a
    /// run that goes on from here ends as an undisturbed one.
    bool CommitInTime(const Attempt& attempt, const std::string& dayKey);
    void GoBackToCommitted(const Attempt& attempt, const std::string& dayKey);
    void Release();

    /// Reads a day's file to its end; true when reading was abandoned.
    bool ParseFile(Ref<TextStream> stream, const DayFile& day, std::int32_t lastCount,
        const Ref<ProgressBarForm>& progress, std::int32_t loadRange);
    /// Notes the slots as unread when the first line is all of a file, since its lines end in a way that isn't known.
    void NoteForeignLineEnds(const Attempt& attempt, const Ref<TextStream>& stream, const std::string& firstLine);
    /// Passes over lines; false when the file has fewer.
    bool SkipLines(const Ref<TextStream>& stream, std::int64_t lines);
    /// Handles one line; true when the whole sync must stop.
    bool ParseLine(const std::string& line, const DayFile& day, std::int32_t lastCount,
        const Ref<ProgressBarForm>& progress, bool showing);
    /// Has the line in hand remembered, unless the tracker may be writing it still.
    void NoteReached(const Attempt& attempt, LineContent content);
    /// Stretches the last item by a slot; false when the slot needs an item of its own.
    bool Continue(const Attempt& attempt, Date expectedEnd, const SlotActivity& activity);
    /// Adds a line to the list in the body of the item that ends with the slot; without such an item it is dropped.
    void AddDetail(const Attempt& attempt, const SlotActivity& activity);
    /// Makes a new item, which becomes the last one; false when it couldn't be saved.
    bool CreateItem(const Attempt& attempt, const SlotActivity& activity);
    /// Looks for the item with that end when there is no last item.
    void FindLastItem(const Attempt& attempt, Date end);
    void ForgetLastItem();

    void ExtractBrowser(const Ref<XmlNode>& objXML, bool tracesChoice, SlotActivity& activity);
    void ExtractMail(const Ref<XmlNode>& objXML, SlotActivity& activity);
    /// True for what is nothing to show: the empty text and "None".
    bool IsNothing(const std::string& text) const;

    Ref<FileSystemObject> mFileSystem;
    Ref<TempodialMain> mMain;
    /// End of the last line loaded, in seconds after midnight.
    std::int32_t mNewLastCount = 0;
    std::int32_t mLineCount = 0;
    bool mLineLoaded = false;
    /// The item that the last line went into; kept across files and syncs.
    Ref<AppointmentItem> mLastItem;
    std::string mLastItemBody;
    bool mSyncing = false;
    bool mTerminated = false;
    /// The sync under way goes by the lines that were reached, and stops at what it can't read.
    bool mRemembers = false;
    Date mLastSynced;
    /// Lines of the file in hand read behind its first.
    std::int64_t mLinesRead = 0;
    LineKind mLineKind = LineKind::Whole;
    /// The last count of the day in hand by the history.
    std::int32_t mHistoryCount = 0;
    /// The line in hand was reached before.
    bool mLineIsKnown = false;
    std::int32_t mUncommittedLines = 0;
    Date mLastCommit;
    /// The parsed line, one document for all lines.
    Ref<XmlDocument> mSlot;
};

}
