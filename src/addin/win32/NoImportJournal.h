#pragma once

#include "platform/system/ImportJournal.h"

#include <optional>
#include <string>

namespace tempodial {

/// The journal of a mailbox that can't keep one: imports go by the history alone.
class NoImportJournal final : public ImportJournal
{
public:
    void Begin() override { }
    void Loaded(const std::string& /*dayKey*/, const Position& /*position*/) override { }
    void Commit() override { }
    std::optional<Position> Committed(const std::string& /*dayKey*/) override { return std::nullopt; }
    void HistorySaved() override { }
    void End() override { }
    bool Remembers() override { return false; }
    void ForgetLines() override { }
    std::int32_t BeginDay(const std::string& /*dayKey*/, std::int32_t lastCount) override { return lastCount; }
    bool IsKnown(const std::string& /*line*/) override { return false; }
    void Reached(std::int64_t /*number*/, bool /*isReadable*/) override { }
};

}
