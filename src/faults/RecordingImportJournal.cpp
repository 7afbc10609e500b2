#include "faults/RecordingImportJournal.h"

#include "base/Failure.h"

#include <utility>

namespace tempodial {

namespace {

template <class Operation> auto Noting(Problems& problems, Operation&& operation)
{
    try {
        return operation();
    } catch (const Failure& failure) {
        problems.Note("activities couldn't be saved in the mailbox: " + failure.Description()
            + ": see to the disk and run the command again");
        throw;
    }
}

}

RecordingImportJournal::RecordingImportJournal(Ref<ImportJournal> inner, Ref<Problems> problems)
    : mInner(std::move(inner))
    , mProblems(std::move(problems))
{
}

void RecordingImportJournal::Begin()
{
    Noting(*mProblems, [this] { mInner->Begin(); });
}

void RecordingImportJournal::Loaded(const std::string& dayKey, const Position& position)
{
    Noting(*mProblems, [&] { mInner->Loaded(dayKey, position); });
}

void RecordingImportJournal::Commit()
{
    Noting(*mProblems, [this] { mInner->Commit(); });
}

std::optional<ImportJournal::Position> RecordingImportJournal::Committed(const std::string& dayKey)
{
    return Noting(*mProblems, [&] { return mInner->Committed(dayKey); });
}

void RecordingImportJournal::HistorySaved()
{
    Noting(*mProblems, [this] { mInner->HistorySaved(); });
}

void RecordingImportJournal::End()
{
    Noting(*mProblems, [this] { mInner->End(); });
}

}
