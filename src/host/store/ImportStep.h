#pragma once

#include "base/Ref.h"
#include "host/store/Step.h"
#include "host/store/StepTable.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>

namespace tempodial {

class Mailbox;
class MailboxStore;

/// A step of what imports change as long as this lives. Each commit of an import brings the step up to what it commits,
/// so that a mailbox whose program was killed has the one as far as the other.
class ImportStep
{
public:
    /// Reads the projects with their rules as they are now, where they are safe already.
    using RulesReader = std::function<std::string()>;
    /// Tells whether what is about to change belongs to the step.
    using Belonging = std::function<bool()>;

    /// Begins a step at a moment of the run's clock; fails as a statement does.
    ImportStep(const Ref<Mailbox>& mailbox, Date moment, const std::string& command, RulesReader rules,
        const Belonging& belongs);
    ~ImportStep();
    ImportStep(const ImportStep&) = delete;
    ImportStep& operator=(const ImportStep&) = delete;

private:
    void Keep(std::int64_t item);
    void BringUp();

    Ref<MailboxStore> mStore;
    StepTable mTable;
    RulesReader mRules;
    Step mStep;
    /// The items that changed since the last commit.
    std::unordered_set<std::int64_t> mChanged;
};

}
