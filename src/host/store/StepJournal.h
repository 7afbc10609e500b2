#pragma once

#include "base/Ref.h"
#include "host/store/Step.h"
#include "host/store/StepTable.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace tempodial {

class Mailbox;
class MailboxStore;

/// The journal of steps of a mailbox: while a step is begun, all writes are held and what they change is kept, and the
/// end commits both together. A failure undoes them all. What is done during an import belongs to no step, and
/// an import that begins within a step ends it; `ImportStep` is for what imports do. Rules live elsewhere: a step notes
/// them and whether they are safe there.
class StepJournal
{
public:
    /// Reads the projects with their rules as they are now.
    using RulesReader = std::function<std::string()>;

    explicit StepJournal(const Ref<Mailbox>& mailbox);
    /// Undoes what a step that wasn't ended has done.
    ~StepJournal();
    StepJournal(const StepJournal&) = delete;
    StepJournal& operator=(const StepJournal&) = delete;

    /// Begins a step at a moment of the run's clock; fails when writes are refused.
    void Begin(Date moment, const std::string& command, RulesReader rules);
    /// Ends the step and commits what it did; one that changed nothing is no step. A failure undoes all of it.
    void End();
    /// Ends the step and undoes what it did.
    void Abandon();
    /// Takes back, within a step that was begun for it, what another one did to items; they are saved at that moment in
    /// UTC. The rules are the caller's matter. When in the end nothing goes back, that one isn't taken back.
    StepItems TakeBack(const Step& step, Date saved);
    /// True while writes are held for something else, such as an import, so that no step begins.
    bool IsBarred() const;
    /// True when an item that a step changed holds what isn't saved, which taking it back would drop.
    bool HasUnsaved(const Step& step);
    /// What taking a step back would do to items.
    StepItems Preview(const Step& step) { return mTable.Restorable(step.number); }

    /// The newest steps from a moment on, newest first, so many at most.
    std::vector<Step> Newest(Date from, std::int64_t most) { return mTable.Newest(from, most); }
    /// A step by its number; nothing when it isn't there.
    std::optional<Step> Find(std::int64_t number) { return mTable.Find(number); }
    /// The newest step from a moment on that is neither an undo nor taken back; nothing when there is none.
    std::optional<Step> NewestInForce(Date from) { return mTable.NewestInForce(from); }
    /// The newest step, when its rules aren't known to be where they live; nothing otherwise.
    std::optional<Step> WithRulesDue() { return mTable.WithRulesDue(); }
    /// The rules of the newest step are where they live. Doesn't wait for the disk: to be told so again does no harm.
    void NoteRulesReached();

    /// Steps are kept for so many days.
    static constexpr std::int32_t DaysKept = 90;
    /// The first moment whose steps are still kept, seen from another.
    static Date FirstKept(Date now);

private:
    void Keep(std::int64_t item);
    void BeginRow();
    void NoteTakenBack();
    void Stop();

    Ref<MailboxStore> mStore;
    StepTable mTable;
    RulesReader mRules;
    /// The step that was begun; its number is 0 until it changes something.
    std::optional<Step> mStep;
    /// The items that it changes.
    std::unordered_set<std::int64_t> mItems;
};

}
