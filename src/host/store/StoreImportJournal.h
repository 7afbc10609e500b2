#pragma once

#include "base/Ref.h"
#include "platform/system/ImportJournal.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <string>

namespace tempodial {

class Mailbox;
class MailboxStore;

/// The import journal of a mailbox: while it is begun, writes are committed every two seconds or 2,000 lines, and when
/// asked. A failure undoes what was written since the last commit, and from then on every write fails until `End`.
class StoreImportJournal final : public ImportJournal
{
public:
    explicit StoreImportJournal(const Ref<Mailbox>& mailbox);
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

private:
    /// Commits with the positions and ends the holding; false when nothing was held.
    bool Keep();
    void Hold();

    Ref<MailboxStore> mStore;
    std::map<std::string, Position> mPositions;
    std::int32_t mLines = 0;
    std::chrono::steady_clock::time_point mLastCommit;
};

}
