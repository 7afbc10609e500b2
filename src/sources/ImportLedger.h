#pragma once

#include "base/Date.h"
#include "base/SettingsFile.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace tempodial {

/// Slots of a day.
inline constexpr std::size_t SlotsOfDay = 288;

/// What imports have written of one day.
struct LedgerDay
{
    std::bitset<SlotsOfDay> slots;
    /// Exact entries, by their times and a hash of what they say.
    std::set<std::string> entries;

    /// What an entry is known by.
    static std::string EntryKey(std::int64_t start, std::int64_t end, const std::string& source,
        const std::string& text, const std::string& project);
    /// What the entries of these times are known by, whatever it says.
    std::set<std::string> EntriesAt(std::int64_t start, std::int64_t end) const;
    void Add(const LedgerDay& other);
};

/// What imports have written, whatever became of it, so that nothing comes twice and nothing comes back; and what an
/// import is about to write, so that one that was killed is known.
class ImportLedger
{
public:
    ImportLedger() = default;
    /// The ledger that a file of settings holds; one that is damaged fails with a `SettingsFileError`.
    explicit ImportLedger(const SettingsFile& file);

    /// What was written of a day.
    const LedgerDay& Of(Date day) const;
    /// Forgets what was written of a day.
    void Forget(Date day) { mDays.erase(day); }

    /// Notes what is about to be written, and the mark by which its file is told from others of the day.
    void Plan(Date day, const LedgerDay& what, const std::string& mark) { mPlanned[day] = { what, mark }; }
    /// The days of which something is about to be written, with their marks.
    std::map<Date, std::string> Planned() const;
    /// What was planned of a day has been written, or never was.
    void Close(Date day, bool isWritten);

    /// The text of its file.
    std::string Text() const;

private:
    struct PlannedPart
    {
        LedgerDay what;
        std::string mark;
    };

    std::map<Date, LedgerDay> mDays;
    std::map<Date, PlannedPart> mPlanned;
};

}
