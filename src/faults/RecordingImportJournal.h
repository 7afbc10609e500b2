#pragma once

#include "base/Ref.h"
#include "faults/Problems.h"
#include "platform/system/ImportJournal.h"

namespace tempodial {

/// An import journal that notes when what was imported couldn't be made durable, and fails as before.
class RecordingImportJournal final : public ImportJournal
{
public:
    RecordingImportJournal(Ref<ImportJournal> inner, Ref<Problems> problems);

    void Begin() override;
    void Loaded(const std::string& dayKey, const Position& position) override;
    void Commit() override;
    std::optional<Position> Committed(const std::string& dayKey) override;
    void HistorySaved() override;
    void End() override;

private:
    Ref<ImportJournal> mInner;
    Ref<Problems> mProblems;
};

}
