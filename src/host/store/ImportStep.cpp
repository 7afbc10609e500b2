#include "host/store/ImportStep.h"

#include "host/store/Mailbox.h"
#include "host/store/MailboxStore.h"
#include "host/store/StepJournal.h"

#include <utility>

namespace tempodial {

ImportStep::ImportStep(
    const Ref<Mailbox>& mailbox, Date moment, const std::string& command, RulesReader rules, const Belonging& belongs)
    : mStore(mailbox->Store())
    , mTable(mStore->Database())
    , mRules(std::move(rules))
    , mStep { .number = mTable.NextNumber(), .moment = moment, .command = command, .rulesBefore = mRules() }
{
    mStore->Table().SetWatcher([this, belongs](std::int64_t item) {
        if (belongs()) {
            Keep(item);
        }
    });
    mStore->SetBeforeImportCommit([this] { BringUp(); });
}

ImportStep::~ImportStep()
{
    mStore->SetBeforeImportCommit({});
    mStore->Table().SetWatcher({});
}

void ImportStep::Keep(std::int64_t item)
{
    // What was kept may have been undone together with what an import has written, so only the table knows.
    mTable.Begin(mStep);
    mTable.Keep(mStep.number, item);
    mChanged.insert(item);
}

void ImportStep::BringUp()
{
    for (const auto item : std::exchange(mChanged, {})) {
        mTable.Leave(mStep.number, item);
    }
    auto step = mStep;
    step.rulesAfter = mRules();
    if (step.rulesAfter == step.rulesBefore) {
        step.rulesBefore.reset();
        step.rulesAfter.reset();
    } else {
        mTable.Begin(step);
    }
    if (mTable.Finish(step)) {
        mTable.NoteRulesReached(step.number);
        mTable.RemoveBefore(StepJournal::FirstKept(step.moment));
    }
}

}
