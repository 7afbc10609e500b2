#include "base/Failure.h"
#include "base/Number.h"
#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/dialogs/ProgressBarForm.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/import/TempodialDataHandler.h"

namespace tempodial {

namespace {

constexpr auto ParseLineWords = "ParseLine error ";
constexpr std::int32_t ProgressLimit = 50;
constexpr std::int32_t LinesPerProgressStep = 4;
/// Seconds, and lines loaded, between two commits within a file.
constexpr std::int64_t CommitSeconds = 1;
constexpr std::int32_t CommitLines = 1000;
/// Lines of a file in front of its slots.
constexpr std::int64_t HeadingLines = 1;

}

bool TempodialDataHandler::ParseFile(Ref<TextStream> stream, const DayFile& day, std::int32_t lastCount,
    const Ref<ProgressBarForm>& progress, std::int32_t loadRange)
{
    const auto attempt = Failing("ParseFile error ", LineShape::TextBlankStep);
    const auto read = Failing("File error ", LineShape::TextBlankStep);
    bool fileEnded = false;
    bool fileFailed = false;
    bool cancelled = false;
    bool showing = false;
    std::string line;
    const auto readLine = [&] {
        const auto failure = read.FailureOf([&] { line = stream->ReadLine(); });
        fileEnded = fileEnded || failure;
        fileFailed = fileFailed || (failure && !failure->Is(Error::InputPastEnd));
    };

    mStage = "ReadLine";
    readLine(); // The first line is no slot, whatever it holds.
    mLinesRead = 0;
    mHistoryCount = lastCount;
    attempt([&] { lastCount = mPlatform->importJournal->BeginDay(day.key, lastCount); });
    if (!fileEnded) {
        NoteForeignLineEnds(attempt, stream, line);
    }
    if (day.committed && !fileEnded && !mRemembers) {
        if (SkipLines(stream, day.committed->lines)) {
            mLinesRead = day.committed->lines;
        } else {
            // The file was replaced by a shorter one: only the count is left to go by.
            attempt([&] { stream->Close(); });
            if (!attempt([&] { stream = mFileSystem->OpenTextFile(day.livePath, OpenMode::Reading, false); })) {
                return true;
            }
            readLine();
            lastCount = day.committed->count;
            attempt([&] { mPlatform->importJournal->BeginDay(day.key, lastCount); });
        }
    }
    readLine();
    mLineCount = 1;
    attempt([&] {
        progress->Initialise(mMain->mStrings->mLogName,
            "Loading activities for past " + std::to_string(loadRange) + " days...",
            "loading " + mPlatform->formats->LongDate(day.day), "Cancel", ProgressLimit, true);
    });

    while (!fileEnded) {
        ++mLinesRead;
        mLineKind = attempt.Get([&] { return stream->LastLine(); });
        // What isn't remembered isn't asked for: a line that is too long comes as an empty one too.
        const bool isNothing = IsBlank(line) && mLineKind != LineKind::TooLong;
        mLineIsKnown = !isNothing && attempt.Get([&] { return mPlatform->importJournal->IsKnown(line); });
        attempt([&] { cancelled = ParseLine(line, day, lastCount, progress, showing); });
        if (mLineLoaded && !cancelled && !showing) {
            showing = true;
            attempt([&] { progress->Show(); });
            attempt.Say("show progress");
        }
        if (cancelled) {
            fileEnded = true;
        } else {
            mStage = "ReadLine 2";
            readLine();
        }
    }

    mStage = "Close";
    attempt([&] { stream->Close(); });
    return cancelled || (fileFailed && mRemembers);
}

void TempodialDataHandler::NoteForeignLineEnds(
    const Attempt& attempt, const Ref<TextStream>& stream, const std::string& firstLine)
{
    const auto end = firstLine.find('\r');
    const bool isAll = attempt.Get([&] { return stream->LastLine() == LineKind::Unended; });
    if (isAll && end != std::string::npos && end + 1 < firstLine.size()) {
        // All of the file is one line then, so that its slots are never seen.
        mLineIsKnown = attempt.Get([&] { return mPlatform->importJournal->IsKnown(firstLine); });
        if (!mLineIsKnown) {
            attempt([&] { mPlatform->importJournal->Reached(HeadingLines + 1, false); });
        }
    }
}

bool TempodialDataHandler::SkipLines(const Ref<TextStream>& stream, std::int64_t lines)
{
    return Failing("", LineShape::Silent)([&] {
        for (std::int64_t skipped = 0; skipped < lines; ++skipped) {
            mPlatform->importJournal->IsKnown(stream->ReadLine());
        }
    });
}

bool TempodialDataHandler::ParseLine(const std::string& line, const DayFile& day, std::int32_t lastCount,
    const Ref<ProgressBarForm>& progress, bool showing)
{
    const auto attempt = Failing(ParseLineWords, LineShape::TextBlankStep);
    auto& utils = *mMain->mUtils;
    const auto& unknown = mMain->mStrings->mUnknownString;
    const auto isSet = [&](std::string_view path) {
        return attempt.Get([&] { return utils.GetTextValue(mSlot, path) != unknown; });
    };

    if (!mSlot && !attempt([&] { mSlot = mPlatform->xml->NewDocument(); })) {
        return false;
    }
    if (!attempt([&] { mSlot->LoadXML(line); }) || attempt.Get([&] { return mSlot->IsEmpty(); })) {
        if (!IsBlank(line) || mLineKind == LineKind::TooLong) {
            NoteReached(attempt, LineContent::NoDocument);
        }
        return false; // Not well-formed, as the last line is while the tracker writes it.
    }
    std::int32_t endCount = 0;
    const bool hasEnd = attempt([&] { endCount = ToInt32(utils.GetTextValue(mSlot, "slot/EndTime")); });
    const bool isDetail = isSet("slot/Detail");
    const bool isNew = endCount > lastCount || (endCount == lastCount && isDetail);
    // kept: a detail at the last count of the history is loaded at each sync, which adds nothing; but not behind a run
    // that came further than the history.
    const bool isAtLastCount = isDetail && endCount == mHistoryCount && !day.committed;
    const bool isAgain = mLineIsKnown && mRemembers && !isAtLastCount;
    const bool taken = isNew && !isAgain;
    SlotActivity activity;
    if (taken) {
        attempt.Say([&] { return "load line: " + line; });
        attempt([&] { ExtractData(mSlot, day.day, activity); });
    }
    const bool hasTimes = hasEnd && (!taken || (activity.startTime != Date() && activity.endTime != Date()));
    const auto content = hasTimes ? LineContent::Slot : LineContent::SlotWithoutTimes;
    mStage = ".text";
    if (!taken) {
        NoteReached(attempt, content);
        return false;
    }

    ++mLineCount;
    bool process = true;
    if (isSet("slot/Continuation")) {
        const auto expectedEnd = activity.endTime.AddMinutes(-mMain->mConfig->mSlotsize);
        activity.startTime = expectedEnd;
        process = !Continue(attempt, expectedEnd, activity);
    } else if (isDetail) {
        AddDetail(attempt, activity);
        process = false;
    } else if (!CommitInTime(attempt, day.key)) {
        return true;
    }
    if (process && !CreateItem(attempt, activity)) {
        return true;
    }

    mStage = "finish up";
    mLineLoaded = true;
    mNewLastCount = endCount;
    attempt.Say(" new Last count: " + std::to_string(mNewLastCount));
    ++mUncommittedLines;
    NoteReached(attempt, content);
    if (!attempt([&] { mPlatform->importJournal->Loaded(day.key, { mNewLastCount, mLinesRead }); })) {
        GoBackToCommitted(attempt, day.key);
        return true;
    }
    bool cancelled = false;
    if (showing && mLineCount % LinesPerProgressStep == 0) {
        attempt([&] { progress->Update(mLineCount / LinesPerProgressStep); });
        attempt.Say("update progress");
        cancelled = attempt.Get([&] { return progress->IsCancelled(); }) || mTerminated;
    }
    return cancelled;
}

void TempodialDataHandler::NoteReached(const Attempt& attempt, LineContent content)
{
    const bool isUnended = mLineKind == LineKind::Unended;
    if (!mLineIsKnown && !(isUnended && content == LineContent::NoDocument)) {
        const bool isReadable = isUnended || content == LineContent::Slot;
        attempt([&] { mPlatform->importJournal->Reached(mLinesRead + HeadingLines, isReadable); });
    }
}

bool TempodialDataHandler::Continue(const Attempt& attempt, Date expectedEnd, const SlotActivity& activity)
{
    if (mLastItem && !attempt.Get([&] { return mLastItem->End() == expectedEnd; })) {
        attempt.Say([&] { return "unmatched last item against: " + mPlatform->formats->General(expectedEnd); });
        ForgetLastItem();
    }
    FindLastItem(attempt, expectedEnd);
    attempt.Say([&] { return "continuation of " + mLastItem->Subject(); });
    mStage = "updateitem";
    if (!mLastItem) {
        return false;
    }

    mStage = "check continue";
    if (!attempt.Get([&] { return mMain->IsContinuable(mLastItem); })) {
        return false;
    }
    mStage = "get duration";
    std::int32_t duration = 0;
    attempt([&] { duration = mLastItem->Duration() + MinutesBetween(expectedEnd, activity.endTime); });
    mStage = "call update";
    // A call that fails as a whole hasn't stretched the item, so the line needs one of its own.
    std::int32_t result = 1;
    attempt([&] {
        result = mMain->UpdateCalendarItem(mLastItem, activity.project, activity.description, activity.application,
            activity.contacts, duration, mLastItem->Start(), activity.endTime, "", false, true);
    });
    if (result != 0) {
        attempt.Say("update failed with error: " + std::to_string(result));
    }
    return result == 0;
}

void TempodialDataHandler::AddDetail(const Attempt& attempt, const SlotActivity& activity)
{
    attempt.Say("detail");
    if (mLastItem && !attempt.Get([&] { return mLastItem->End() == activity.endTime; })) {
        ForgetLastItem();
    }
    FindLastItem(attempt, activity.endTime);
    if (!mLastItem) {
        return;
    }

    attempt.Say([&] { return "detail of " + mLastItem->Subject(); });
    const auto entry = activity.description + std::string(CrLf);
    if (mLastItemBody.find(std::string(CrLf) + entry) == std::string::npos) {
        if (mLastItemBody.empty()) {
            mLastItemBody = CrLf;
        }
        mLastItemBody += entry;
    }
    attempt([&] {
        mMain->ExtraCalendarItemInfo(mLastItem, activity.description, activity.application, activity.project,
            activity.contacts, activity.startTime, activity.endTime, mLastItemBody);
    });
}

bool TempodialDataHandler::CreateItem(const Attempt& attempt, const SlotActivity& activity)
{
    mStage = "CreateCalendarItem";
    attempt.Say("create item");
    ForgetLastItem();
    attempt([&] {
        mLastItem = mMain->CreateCalendarItem(activity.project, activity.description, activity.application,
            activity.contacts, activity.duration, activity.startTime, activity.endTime, activity.body, false);
    });
    if (!mLastItem) {
        attempt.Say("Item save attempt failed");
        return false;
    }
    attempt.Say([&] { return "new last item at: " + mPlatform->formats->General(mLastItem->Start()); });
    mLastItemBody = activity.body;
    return true;
}

void TempodialDataHandler::FindLastItem(const Attempt& attempt, Date end)
{
    if (!mLastItem) {
        attempt([&] { mLastItem = mMain->ReturnMatchingItem("End", end); });
        attempt([&] { mLastItemBody = mMain->GetBody(mLastItem); });
    }
}

void TempodialDataHandler::ForgetLastItem()
{
    mLastItem = nullptr;
    mLastItemBody.clear();
}

bool TempodialDataHandler::CommitInTime(const Attempt& attempt, const std::string& dayKey)
{
    const auto now = attempt.Get([&] { return mPlatform->clock->Now(); });
    const bool isTime = mUncommittedLines >= CommitLines || SecondsBetween(mLastCommit, now) >= CommitSeconds;
    return !isTime || Commit(attempt, dayKey);
}

}
