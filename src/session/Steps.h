#pragma once

#include "host/store/StepJournal.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tempodial {

class Profile;

/// A step that can't be taken back; the message says why and what to do.
class StepError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What was taken back.
struct UndoneStep
{
    Step step;
    StepItems items;
};

/// The steps of a profile: what commands and gestures changed in the log and in the projects, and how that is taken
/// back. The mailbox has the items and the registry the projects, so a step reaches the mailbox first, together with
/// the projects as it leaves them; when the registry doesn't get them any more, it does when the profile is next
/// opened.
class Steps
{
public:
    /// The profile must live as long as this.
    explicit Steps(const Profile& profile);

    /// Does work as one step of that name, which is recorded together with what it changes; work that fails changes
    /// nothing. Fails as the work does, and as mailbox and registry do.
    void Record(const std::string& command, const std::function<void()>& work);
    /// Does work whose imports are one step of that name, as far as they say that it belongs to it when they change
    /// something. An import commits as it goes on, and the step with it, so that what is cut off or fails is a step as
    /// far as it came. Fails as the work does.
    void RecordImports(
        const std::string& command, const std::function<bool()>& belongs, const std::function<void()>& work);
    /// The newest steps that are still kept, newest first, so many at most.
    std::vector<Step> Newest(std::int64_t most);
    /// Takes a step back, the newest that is neither an undo nor taken back when no number is given, as a step of that
    /// name. What was changed since stays as it is. Fails with `StepError`, also during an import, and when one of its
    /// items holds what isn't saved.
    UndoneStep Undo(std::optional<std::int64_t> number, const std::string& command);
    /// What `Undo` would do; changes nothing, and fails as it does for want of the step.
    UndoneStep Preview(std::optional<std::int64_t> number);
    /// Brings into the registry the projects of a step that was cut off before they reached it.
    void Recover();

private:
    std::string Rules() const;
    /// Takes back what a step did to the projects.
    void TakeRulesBack(const Step& step);
    Step Chosen(std::optional<std::int64_t> number);

    const Profile& mProfile;
    StepJournal mJournal;
};

}
