#include "host/store/StepJournal.h"

#include "host/store/Mailbox.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreItem.h"

#include <algorithm>
#include <utility>

namespace tempodial {

StepJournal::StepJournal(const Ref<Mailbox>& mailbox)
    : mStore(mailbox->Store())
    , mTable(mStore->Database())
{
}

StepJournal::~StepJournal()
{
    Abandon();
}

void StepJournal::Begin(Date moment, const std::string& command, RulesReader rules)
{
    if (IsBarred()) {
        return;
    }
    mStore->Database().Hold();
    mStep = Step { .moment = moment, .command = command, .rulesBefore = rules() };
    mRules = std::move(rules);
    mStore->SetCommit([this] { End(); });
    mStore->Table().SetWatcher([this](std::int64_t item) { Keep(item); });
}

void StepJournal::End()
{
    if (!mStep) {
        return;
    }
    auto& database = mStore->Database();
    try {
        database.CheckWhole();
        mStep->rulesAfter = mRules();
        if (mStep->rulesAfter == mStep->rulesBefore) {
            mStep->rulesBefore.reset();
            mStep->rulesAfter.reset();
        } else {
            BeginRow();
        }
        if (mStep->number != 0 && mTable.End(*mStep)) {
            NoteTakenBack();
            mTable.RemoveBefore(FirstKept(mStep->moment));
        }
        database.CommitHeld();
    } catch (...) {
        Abandon();
        throw;
    }
    mStore->Committed();
    Stop();
}

void StepJournal::Abandon()
{
    if (!mStep) {
        return;
    }
    if (mStore->Database().IsHolding()) {
        mStore->Database().DropHeld();
    }
    mStore->Database().Recover();
    Stop();
}

StepItems StepJournal::TakeBack(const Step& step, Date saved)
{
    const auto items = mTable.Restorable(step.number);
    BeginRow();
    mStep->undoes = step.number;
    mTable.Restore(step.number, mStep->number, saved);
    mStore->Table().RetireRows();
    mStore->NoteForeignChange();
    for (const auto row : mTable.ItemsOf(mStep->number)) {
        if (const auto item = mStore->Live(row)) {
            mStore->Refresh(*item);
        }
    }
    return items;
}

bool StepJournal::IsBarred() const
{
    return mStore->Database().IsHolding();
}

bool StepJournal::HasUnsaved(const Step& step)
{
    const auto items = mTable.ItemsOf(step.number);
    return std::any_of(items.begin(), items.end(), [this](std::int64_t row) {
        const auto item = mStore->Live(row);
        return item && item->HasChanges();
    });
}

void StepJournal::NoteRulesReached()
{
    auto& database = mStore->Database();
    const auto step = mTable.WithRulesDue();
    if (!step) {
        return;
    }
    database.Execute("PRAGMA synchronous = NORMAL");
    mTable.NoteRulesReached(step->number);
    database.Execute("PRAGMA synchronous = FULL");
}

Date StepJournal::FirstKept(Date now)
{
    return now.AddDays(-DaysKept);
}

void StepJournal::Keep(std::int64_t item)
{
    if (!mItems.insert(item).second) {
        return;
    }
    BeginRow();
    mTable.Keep(mStep->number, item);
}

void StepJournal::BeginRow()
{
    if (mStep->number == 0) {
        mStep->number = mTable.NextNumber();
        mTable.Begin(*mStep);
    }
}

void StepJournal::NoteTakenBack()
{
    // Of a step of which nothing could be taken back, all is still there to be.
    if (const auto undone = mStep->undoes ? mTable.Find(*mStep->undoes) : std::nullopt) {
        mTable.SetTakenBack(*undone, true);
    }
}

void StepJournal::Stop()
{
    mStep.reset();
    mItems.clear();
    mStore->SetCommit({});
    mStore->Table().SetWatcher({});
}

}
