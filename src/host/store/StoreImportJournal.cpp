#include "host/store/StoreImportJournal.h"

#include "base/Failure.h"
#include "host/store/Mailbox.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/Query.h"

#include <utility>

namespace tempodial {

namespace {

constexpr std::int32_t MostLines = 2000;
constexpr std::chrono::seconds LongestHold { 2 };

}

StoreImportJournal::StoreImportJournal(const Ref<Mailbox>& mailbox, HistoryReader readHistory)
    : mStore(mailbox->Store())
    , mMemory(mailbox)
    , mReadHistory(std::move(readHistory))
{
}

StoreImportJournal::~StoreImportJournal()
{
    mStore->SetCommit({});
}

void StoreImportJournal::SetRemembers(bool remembers)
{
    mRemembers = remembers;
    mStore->ShowChoices(remembers);
}

void StoreImportJournal::Begin()
{
    mUnread.clear();
    mHistory = mReadHistory ? mReadHistory() : std::nullopt;
    mStore->Database().Recover();
    // What someone else holds is committed and then let go of; what this holds goes on.
    mStore->CommitHeld();
    mStore->SetCommit([this] { Commit(); });
    mStore->Choose(ProjectChoice::Nobody);
    if (!mStore->Database().IsHolding()) {
        Hold();
    }
}

void StoreImportJournal::Loaded(const std::string& dayKey, const Position& position)
{
    mStore->Database().CheckWhole();
    if (!mStore->Database().IsHolding()) {
        throw Failure(Error::InvalidCall, "No import was begun");
    }
    mPositions[dayKey] = position;
    if (++mLines >= MostLines || std::chrono::steady_clock::now() - mLastCommit >= LongestHold) {
        Commit();
    }
}

void StoreImportJournal::Commit()
{
    if (Keep()) {
        Hold();
    }
}

std::optional<ImportJournal::Position> StoreImportJournal::Committed(const std::string& dayKey)
{
    Query query(mStore->Database(),
        "SELECT count, lines FROM import_position WHERE day = ? AND (history IS NULL OR history = ?)");
    query.Bind(dayKey).BindOptional(mHistory);
    if (!query.Step()) {
        return std::nullopt;
    }
    return Position { static_cast<std::int32_t>(query.Int(0)), query.Int(1) };
}

void StoreImportJournal::HistorySaved()
{
    mStore->Database().CheckWhole();
    mPositions.clear();
    // Where lines are remembered, a position that holds once more because a former history was put back does no harm.
    if (!mRemembers || !mHistory) {
        Query(mStore->Database(), "DELETE FROM import_position").Run();
    }
    mHistory.reset();
    if (mForgets) {
        mMemory.ForgetOldDays();
    }
    if (mStore->Database().IsHolding()) {
        Commit();
    }
}

void StoreImportJournal::End()
{
    mStore->Choose(ProjectChoice::Rules);
    try {
        Keep();
    } catch (...) {
        mStore->Database().Recover();
        throw;
    }
}

std::int32_t StoreImportJournal::BeginDay(const std::string& dayKey, std::int32_t lastCount)
{
    mDay = dayKey;
    const auto firstCount = mMemory.BeginDay(dayKey, lastCount);
    return mRemembers ? firstCount : lastCount;
}

void StoreImportJournal::Reached(std::int64_t number, bool isReadable)
{
    mMemory.Reached();
    if (!isReadable) {
        mUnread.push_back({ mDay, number });
    }
}

bool StoreImportJournal::Keep()
{
    mStore->Database().CheckWhole();
    if (!mStore->Database().IsHolding()) {
        return false;
    }
    if (!mPositions.empty()) {
        Query(mStore->Database(), "DELETE FROM import_position WHERE history IS NOT NULL AND history IS NOT ?")
            .BindOptional(mHistory)
            .Run();
    }
    for (const auto& [day, position] : mPositions) {
        Query(mStore->Database(),
            "INSERT OR REPLACE INTO import_position (day, count, lines, history) VALUES (?, ?, ?, ?)")
            .Bind(day)
            .Bind(std::int64_t { position.count })
            .Bind(position.lines)
            .BindOptional(mHistory)
            .Run();
    }
    mMemory.Keep();
    mStore->CommittingImport();
    mStore->Database().CommitHeld();
    mStore->Committed();
    return true;
}

void StoreImportJournal::Hold()
{
    mPositions.clear();
    mMemory.Discard();
    mLines = 0;
    mLastCommit = std::chrono::steady_clock::now();
    mStore->Database().Hold();
}

}
