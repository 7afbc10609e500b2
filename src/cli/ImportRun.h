#pragma once

#include "cli/CommandError.h"
#include "cli/ConnectedRun.h"
#include "slots/Presence.h"
#include "sources/ImportLedger.h"
#include "sources/ImportPlan.h"

#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// The name of the ledger in the data folder.
inline constexpr auto LedgerFileName = "imported.toml";

/// The times that activities of a log have between the beginning of one day and the end of another.
Presence TimeInLog(const Profile& profile, Date first, Date last);

/// Brings what an import has planned into the work log, through tracker files and the add-in's own import, some days at
/// a time, so that it can be killed anywhere and the next one ends as it would have.
class ImportRun
{
public:
    /// Reads the ledger, and by the files what became of the plan of a run that was killed. Fails with
    /// `SettingsFileError` when the ledger is damaged, and then nothing has changed.
    explicit ImportRun(const Options& options);

    ConnectedRun& Connected() { return mRun; }
    ImportLedger& Ledger() { return mLedger; }

    /// Does work whose imports are one step, as far as they take what an import has planned: what the tracker wrote
    /// comes in by the way and is none.
    void AsStep(const std::function<void()>& work);
    /// Imports what waits in tracker files, those that a killed run has left among them. Answers the days that are over
    /// and whose files are there all the same.
    std::vector<Date> SyncWaiting();
    /// Writes what was planned and imports it; ends early when the user asks for it, and then days that it hasn't come
    /// to have nothing that is written. So too from a day on that can't be written, which goes wrong.
    void Write(ImportPlan::Days& days);

private:
    using Window = std::vector<std::pair<Date, PlannedDay*>>;

    void WriteWindow(const Window& window);
    /// Writes the files of a window's days; answers how many there are.
    std::size_t WriteFiles(const Window& window);
    void WriteDay(Date day, const PlannedDay& planned);
    /// Writes the ledger into its file. `TrySave` lets it go wrong where that fails.
    void SaveLedger();
    void TrySave();
    void Fail(const CommandError& error);
    void SyncUpTo(Date today);
    void ClosePlanned();
    /// The first line of a file in the data folder; empty when there is none.
    std::string HeadingOf(const std::string& name) const;
    /// What tells the file that is to be written of a day from all that were there before.
    std::string MarkOf(Date day, const PlannedDay& planned) const;
    /// The lines of a finished day, each of which the next import knows; none when it doesn't.
    std::vector<std::string> KnownLines(Date day) const;
    std::vector<Date> WaitingDays() const;
    bool IsWaiting(Date day) const;
    /// The present moment of the run, whatever the clock was set to.
    Date Now() const;

    ConnectedRun mRun;
    Date mStart;
    std::chrono::steady_clock::time_point mStartedAt = std::chrono::steady_clock::now();
    ImportLedger mLedger;
    /// True when something couldn't be written: then nothing more is.
    bool mHasFailed = false;
    /// The keys of the days that this run has planned, or a killed one.
    std::set<std::string> mPlannedDays;
};

}
