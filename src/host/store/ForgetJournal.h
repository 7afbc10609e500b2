#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "host/store/Step.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

class Mailbox;
class MailboxStore;

/// A state of an activity.
struct ActivityState
{
    /// The number of the activity.
    std::int64_t number = 0;
    /// The step that keeps the state from before it; nothing for the state that the activity is in.
    std::optional<std::int64_t> step;
    Date start;
    Date end;
    std::string subject;
    std::string body;
    /// As the properties below empty when the activity lacks it.
    std::string project;
    std::string type;
    std::string description;
    std::string people;
};

/// What is forgotten of a mailbox, and what has then to be forgotten elsewhere, which the mailbox keeps until it is
/// done.
struct ForgetOrder
{
    /// The projects of a step as they are to be kept.
    struct Rules
    {
        std::int64_t step = 0;
        std::optional<std::string> before;
        std::optional<std::string> after;
    };

    /// Lines of the tracker's files of a day.
    struct Lines
    {
        std::vector<std::string> texts;
        /// Those of them that imports have reached, once for each time that they stand there.
        std::vector<std::string> reached;
        /// How many of those that a sync has left behind which was cut off.
        std::int64_t beforePosition = 0;
    };

    std::vector<std::int64_t> items;
    std::vector<std::int64_t> steps;
    std::vector<std::int64_t> drafts;
    std::vector<Rules> rules;
    /// By the keys of days.
    std::map<std::string, Lines> lines;
    /// What no line elsewhere may hold any more, whatever the case of its letters.
    std::vector<std::string> texts;
    /// The project that goes from the list; empty for none.
    std::string project;
};

/// What is still to be forgotten outside of a mailbox.
struct ForgetRest
{
    std::map<std::string, std::vector<std::string>> lines;
    std::vector<std::string> texts;
    std::string project;
};

/// Forgets for good: what is to go leaves the mailbox in one transaction, which also keeps what is to go elsewhere, so
/// that this is done in any case. At the end no byte of it is left in the mailbox's file. Every member fails as a
/// statement does.
class ForgetJournal
{
public:
    explicit ForgetJournal(const Ref<Mailbox>& mailbox);

    /// Gives the states of all items of a message class: first those that they are in, then those that steps keep.
    void EachState(const std::string& messageClass, const std::function<void(const ActivityState& state)>& take) const;
    /// All steps.
    std::vector<Step> Steps() const;
    /// How many lines of a day's file, without its heading, a sync has read that was cut off.
    std::int64_t Position(const std::string& dayKey) const;

    /// Lets go what is told. What is to go elsewhere is due from then on.
    void Forget(const ForgetOrder& order);
    /// What is due elsewhere; nothing when nothing is.
    std::optional<ForgetRest> Due() const;
    /// What was due elsewhere is done: frees the file of every byte of what went. Fails (70) while others read the
    /// mailbox, and is due again then.
    void Finish();

private:
    void DeleteRows(const ForgetOrder& order);
    void KeepDue(const ForgetOrder& order);
    void AddDue(const std::string& what, const std::string& day, const std::string& text);
    void ForgetLines(const std::string& dayKey, const ForgetOrder::Lines& lines);

    Ref<MailboxStore> mStore;
};

}
