#pragma once

#include "host/store/Step.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

class MailboxDatabase;
class Query;

/// The rows of all steps, each with its items as they were before it and with the state in which it left them. An item
/// that has left that state was changed since. Every member fails as a statement does.
class StepTable
{
public:
    explicit StepTable(MailboxDatabase& database)
        : mDatabase(database)
    {
    }

    /// The newest steps from a moment on, newest first, so many at most.
    std::vector<Step> Newest(Date from, std::int64_t most);
    /// A step by its number; nothing when it isn't there.
    std::optional<Step> Find(std::int64_t number);
    /// The newest step from a moment on that is neither an undo nor taken back; nothing when there is none.
    std::optional<Step> NewestInForce(Date from);
    /// The newest step, when its rules aren't known to have reached the registry; nothing otherwise.
    std::optional<Step> WithRulesDue();

    /// The number of the next step, which is another's when that one turns out to have changed nothing.
    std::int64_t NextNumber();
    /// Begins a step, unless it was begun.
    void Begin(const Step& step);
    /// Keeps an item as it is before its first change in a step.
    void Keep(std::int64_t step, std::int64_t item);
    /// Keeps an item that a step is still to leave as it is now, or not at all when it didn't change it.
    void Leave(std::int64_t step, std::int64_t item);
    /// Ends a step with all that it changed; one that changed nothing is gone, and false is the answer.
    bool End(const Step& step);
    /// Ends a step that has left each of its items; as above.
    bool Finish(const Step& step);
    /// The rules of a step have reached the registry.
    void NoteRulesReached(std::int64_t step);
    /// Removes the steps from before a moment.
    void RemoveBefore(Date moment);

    /// What would become of a step's items when it is taken back.
    StepItems Restorable(std::int64_t step);
    /// Takes a step's items back, saved at that moment in UTC, keeping each in another step first.
    void Restore(std::int64_t step, std::int64_t keeper, std::optional<Date> saved);
    /// Marks a step as taken back or not, and the steps that it takes back the other way round.
    void SetTakenBack(const Step& step, bool isTakenBack);
    /// The items of a step.
    std::vector<std::int64_t> ItemsOf(std::int64_t step);

private:
    static Step Read(const Query& query);

    MailboxDatabase& mDatabase;
};

}
