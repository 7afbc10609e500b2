#include "engine/import/TempodialDataHandler.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "engine/core/ProductWords.h"
#include "engine/core/TempodialMain.h"
#include "engine/dialogs/ProgressBarForm.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialStrings.h"

namespace tempodial {

namespace {

constexpr auto Revision = "revision 1 TempodialDataHandler";
constexpr auto SyncWords = "SyncData error ";
/// Seconds between two syncs that aren't forced.
constexpr std::int64_t SyncInterval = 20;
/// Seconds after start-up until the first sync that isn't forced.
constexpr std::int64_t FirstSyncDelay = 5;
constexpr std::int32_t NothingLoaded = -1;

}

TempodialDataHandler::TempodialDataHandler(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialDataHandler::Initialize(const Ref<TempodialMain>& main, const Ref<Application>& /*appObject*/,
    const Ref<NameSpace>& /*nsObject*/, const Ref<TempodialDebugLog>& logObj)
{
    const auto attempt = Failing(SyncWords, LineShape::TextBlankStep);
    mFileSystem = mPlatform->fileSystem;
    mLog = logObj;
    mMain = main;
    mTraceInfo = "TDDataHandler";
    ForgetLastItem();
    mSyncing = false;
    mTerminated = false;
    attempt.Say(std::string("Initialize ") + Revision);
    attempt([&] { mLastSynced = mPlatform->clock->Now().AddSeconds(FirstSyncDelay - SyncInterval); });
}

void TempodialDataHandler::Terminate()
{
    mTerminated = true;
    if (!mSyncing) {
        Release();
    }
}

void TempodialDataHandler::Release()
{
    mStage.clear();
    mFileSystem = nullptr;
    mLog = nullptr;
    mMain = nullptr;
    mLastItem = nullptr;
}

void TempodialDataHandler::SyncData(std::int32_t loadRange, bool forceSync)
{
    const auto attempt = Failing(SyncWords, LineShape::TextBlankStepFinished);
    // A click while the progress form lets events in may end the add-in.
    const auto self = weak_from_this().lock();
    if (mSyncing) {
        return;
    }
    Sync sync;
    attempt([&] { sync.progress = MakeRef<ProgressBarForm>(mPlatform); });
    mSyncing = true;
    attempt.Say([&] { return "last synced: " + mPlatform->formats->General(mLastSynced); });
    Date now;
    if (!forceSync) {
        attempt([&] { now = mPlatform->clock->Now(); });
        if (SecondsBetween(mLastSynced, now) < SyncInterval) {
            mSyncing = false;
            return;
        }
    }
    attempt([&] { mLog->SetBufferedTrace(true); });
    mLastSynced = now;
    mLineLoaded = false;

    mStage = "history";
    // Without the journal a line could be imported twice, so no day is looked at then.
    sync.notCancelled = attempt([&] { mPlatform->importJournal->Begin(); });
    sync.journalNeeded = !sync.notCancelled;
    std::string historyPath;
    Ref<TextStream> historyStream;
    attempt([&] { sync.dataFolder = mMain->mCommonUtils->GetDataFolderName(); });
    attempt([&] { historyPath = mFileSystem->BuildPath(sync.dataFolder, mMain->mStrings->mHistoryFile); });
    mRemembers = attempt.Get([&] { return mPlatform->importJournal->Remembers(); });
    const auto historyFile = ReadHistory(attempt, historyPath, historyStream, sync.history);
    const bool mayGoOn = historyFile != HistoryFile::Unreadable || !mRemembers;
    sync.notCancelled = sync.notCancelled && mayGoOn;
    if (historyFile == HistoryFile::Absent && sync.notCancelled) {
        attempt([&] { mPlatform->importJournal->ForgetLines(); });
    }

    mStage = "looping through";
    mUncommittedLines = 0;
    attempt([&] { mLastCommit = mPlatform->clock->Now(); });
    sync.today = mLastCommit.Day();
    sync.loadRange = loadRange;
    std::int32_t daysBack = 0;
    for (; daysBack <= loadRange && sync.notCancelled; ++daysBack) {
        SyncDay(attempt, sync, daysBack);
    }
    for (; daysBack <= loadRange; ++daysBack) {
        LeaveDay(attempt, sync, DayOf(attempt, sync, daysBack));
    }

    mStage = "Cleanup";
    attempt([&] { mLastSynced = mPlatform->clock->Now(); });
    if (mayGoOn) {
        WriteHistory(attempt, historyPath, historyStream, sync);
    }
    attempt([&] { mPlatform->importJournal->End(); });
    attempt([&] { sync.progress->Unload(); });
    mSyncing = false;
    attempt([&] { mLog->SetBufferedTrace(false); });
    attempt.Say("Exiting syncdata");
    if (mTerminated) {
        Release();
    }
}

TempodialDataHandler::HistoryFile TempodialDataHandler::ReadHistory(
    const Attempt& attempt, const std::string& path, Ref<TextStream>& stream, HistoryText& history)
{
    attempt.Say("historyfile: " + path);
    const auto unopened
        = attempt.FailureOf([&] { stream = mFileSystem->OpenTextFile(path, OpenMode::Reading, false); });
    if (!stream) {
        attempt.Say("no history");
        const bool isAbsent = unopened && (unopened->Is(Error::FileNotFound) || unopened->Is(Error::PathNotFound));
        return isAbsent ? HistoryFile::Absent : HistoryFile::Unreadable;
    }
    const auto unread = attempt.FailureOf([&] { history = HistoryText(stream->ReadAll()); });
    attempt.Say([&] { return "history: " + history.Text(); });
    return !unread || unread->Is(Error::InputPastEnd) ? HistoryFile::Readable : HistoryFile::Unreadable;
}

void TempodialDataHandler::WriteHistory(
    const Attempt& attempt, const std::string& path, const Ref<TextStream>& oldStream, Sync& sync)
{
    if (!sync.todayEntry.empty() && sync.notCancelled) {
        sync.history = HistoryText(sync.todayEntry);
    }
    if (oldStream) {
        attempt([&] { oldStream->Close(); });
    }
    Ref<TextStream> stream;
    attempt([&] { stream = mFileSystem->OpenTextFile(path, OpenMode::Writing, true); });
    const bool written = attempt([&] { stream->Write(sync.history.Text()); });
    const bool closed = attempt([&] { stream->Close(); });
    if (written && closed && !sync.journalNeeded) {
        attempt([&] { mPlatform->importJournal->HistorySaved(); });
    }
}

TempodialDataHandler::DayFile TempodialDataHandler::DayOf(
    const Attempt& attempt, const Sync& sync, std::int32_t daysBack) const
{
    DayFile file;
    file.daysBack = daysBack;
    file.day = sync.today.AddDays(-daysBack);
    file.key = file.day.DayKey();
    attempt([&] { file.livePath = mFileSystem->BuildPath(sync.dataFolder, TrackerFileName(file.key)); });
    attempt([&] { file.finishedPath = mFileSystem->BuildPath(sync.dataFolder, FinishedTrackerFileName(file.key)); });
    attempt([&] { file.committed = mPlatform->importJournal->Committed(file.key); });
    return file;
}

void TempodialDataHandler::SyncDay(const Attempt& attempt, Sync& sync, std::int32_t daysBack)
{
    const auto day = DayOf(attempt, sync, daysBack);
    attempt.Say("file: " + day.livePath);
    Ref<TextStream> stream;
    attempt([&] { stream = mFileSystem->OpenTextFile(day.livePath, OpenMode::Reading, false); });
    if (!stream) {
        LeaveDay(attempt, sync, day);
        return;
    }

    const auto position = FindLastCount(attempt, sync, day.key);
    mLineLoaded = false;
    bool cancelled = false;
    attempt([&] { cancelled = ParseFile(stream, day, sync.lastCount, sync.progress, sync.loadRange); });
    if (day.committed && !mLineLoaded) {
        mLineLoaded = true;
        mNewLastCount = day.committed->count;
    }
    if (!cancelled && daysBack != 0 && position > 0 && !mLineLoaded) {
        // Nothing was new; noted all the same, since a run that is killed now has still to take the entry out.
        attempt([&] { mPlatform->importJournal->Loaded(day.key, { sync.lastCount, mLinesRead }); });
    }
    if (!Commit(attempt, day.key)) {
        cancelled = true;
    }
    sync.notCancelled = !cancelled;

    if (!cancelled && daysBack == 0) {
        if (mLineLoaded) {
            sync.todayEntry = HistoryText::Entry(day.key, mNewLastCount);
        } else if (sync.lastCount != NothingLoaded) {
            sync.todayEntry = HistoryText::Entry(day.key, sync.lastCount);
        }
    }
    if (!cancelled && daysBack != 0) {
        FinishDay(attempt, sync, day, position);
    } else if (mLineLoaded) {
        KeepCount(attempt, sync, day, position);
    }
}

std::int32_t TempodialDataHandler::FindLastCount(const Attempt& attempt, Sync& sync, const std::string& dayKey)
{
    const auto position = attempt.Get([&] { return sync.history.Find(dayKey); });
    if (position > 0) {
        attempt.Say("dayoffset: " + std::to_string(position));
        // kept: an entry that can't be read leaves the count of the day before it in this sync.
        attempt([&] { sync.lastCount = sync.history.Count(position); });
    } else {
        attempt.Say("Create zero ");
        sync.lastCount = NothingLoaded;
    }
    attempt.Say("Last count: " + std::to_string(sync.lastCount));
    return position;
}

void TempodialDataHandler::FinishDay(const Attempt& attempt, Sync& sync, const DayFile& day, std::int32_t position)
{
    mStage = "copy";
    attempt([&] { mFileSystem->CopyFile(day.livePath, day.finishedPath, true); });
    // kept: a failed copy doesn't stop the delete.
    mStage = "delete";
    attempt([&] { mFileSystem->DeleteFile(day.livePath, true); });
    if (position > 0) {
        attempt([&] { sync.history.Cut(position); });
    }
}

void TempodialDataHandler::KeepCount(const Attempt& attempt, Sync& sync, const DayFile& day, std::int32_t position)
{
    attempt.Say([&] { return "New Last second count: " + Padded(mNewLastCount, 5); });
    if (position > 0) {
        attempt.Say([&] { return "before: " + sync.history.Tail(position); });
        attempt([&] { sync.history.SetCount(position, mNewLastCount); });
        attempt.Say([&] { return "after: " + sync.history.Tail(position); });
    } else {
        attempt([&] { sync.history.Append(day.key, mNewLastCount); });
    }
}

void TempodialDataHandler::LeaveDay(const Attempt& attempt, Sync& sync, const DayFile& day)
{
    if (!day.committed) {
        return;
    }
    if (attempt.Get([&] { return mFileSystem->FileExists(day.livePath); })) {
        sync.journalNeeded = true;
    } else if (day.daysBack != 0) {
        // The earlier run has finished this day, but couldn't take it out of the history any more.
        const auto position = attempt.Get([&] { return sync.history.Find(day.key); });
        if (position > 0) {
            attempt([&] { sync.history.Cut(position); });
        }
    }
}

bool TempodialDataHandler::Commit(const Attempt& attempt, const std::string& dayKey)
{
    if (!attempt([&] { mPlatform->importJournal->Commit(); })) {
        GoBackToCommitted(attempt, dayKey);
        return false;
    }
    mUncommittedLines = 0;
    attempt([&] { mLastCommit = mPlatform->clock->Now(); });
    return true;
}

void TempodialDataHandler::GoBackToCommitted(const Attempt& attempt, const std::string& dayKey)
{
    ForgetLastItem();
    const auto committed = attempt.Get([&] { return mPlatform->importJournal->Committed(dayKey); });
    mLineLoaded = committed.has_value();
    if (committed) {
        mNewLastCount = committed->count;
    }
}

}
