#pragma once

#include "base/Ref.h"
#include "host/store/LineMemory.h"
#include "platform/system/ImportJournal.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

class Mailbox;
class MailboxStore;

/// The import journal of a mailbox: while it is begun, writes are committed every two seconds or 2,000 lines, and when
/// asked. A failure undoes what was written since the last commit, and from then on every write fails until `End`. The
/// lines that were reached are kept in any case, and gone by when it is told so. Positions hold as long as the history
/// says what it said when the import began, so nothing has to be written when it has changed.
class StoreImportJournal final : public ImportJournal
{
public:
    /// A line of a tracker's file that couldn't be read; the heading is line 1.
    struct UnreadLine
    {
        std::string day;
        std::int64_t number = 0;
    };

    /// Reads the history's text as it is; nothing when there is none.
    using HistoryReader = std::function<std::optional<std::string>()>;

    /// Without a reader there is no history to go by, and positions are deleted when it was written.
    explicit StoreImportJournal(const Ref<Mailbox>& mailbox, HistoryReader readHistory = nullptr);
    ~StoreImportJournal() override;
    StoreImportJournal(const StoreImportJournal&) = delete;
    StoreImportJournal& operator=(const StoreImportJournal&) = delete;

    void Begin() override;
    /// Fails (5) when nothing was begun.
    void Loaded(const std::string& dayKey, const Position& position) override;
    void Commit() override;
    std::optional<Position> Committed(const std::string& dayKey) override;
    void HistorySaved() override;
    void End() override;
    bool Remembers() override { return mRemembers; }
    void ForgetLines() override { mMemory.ForgetLines(); }
    std::int32_t BeginDay(const std::string& dayKey, std::int32_t lastCount) override;
    bool IsKnown(const std::string& line) override { return mMemory.IsKnown(line); }
    void Reached(std::int64_t number, bool isReadable) override;

    /// Lets imports go by the lines that were reached and by the projects that a person chose, or by the history alone,
    /// as they do at first.
    void SetRemembers(bool remembers);
    /// Lets days go that are older than the newest 60, as it does at first, or keeps them.
    void SetForgets(bool forgets) { mForgets = forgets; }
    /// The day whose file was begun last; empty at first.
    const std::string& Day() const { return mDay; }
    /// The lines that couldn't be read of those that the last sync reached first.
    const std::vector<UnreadLine>& Unread() const { return mUnread; }

private:
    /// Commits with the positions and ends the holding; false when nothing was held.
    bool Keep();
    void Hold();

    Ref<MailboxStore> mStore;
    LineMemory mMemory;
    HistoryReader mReadHistory;
    /// What the history said when the import began, until it is written anew; nothing without one.
    std::optional<std::string> mHistory;
    bool mRemembers = false;
    bool mForgets = true;
    std::string mDay;
    std::vector<UnreadLine> mUnread;
    std::map<std::string, Position> mPositions;
    std::int32_t mLines = 0;
    std::chrono::steady_clock::time_point mLastCommit;
};

}
