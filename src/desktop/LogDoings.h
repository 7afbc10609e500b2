#pragma once

#include "base/Ref.h"
#include "desktop/TimeSpan.h"
#include "host/windows/HostExplorer.h"
#include "session/Session.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// What a person does to the activities of a log, each as a step that can be taken back. All fail as the product and
/// the mailbox do.
class LogDoings
{
public:
    using Numbers = std::vector<std::int64_t>;

    /// The session must live as long as this.
    explicit LogDoings(Session& session)
        : mSession(session)
    {
    }

    /// Selects activities in a window, as far as they are still there.
    void Select(HostExplorer& window, const Numbers& numbers) const;
    /// Opens the window of an activity, or brings the one to the front that it has.
    void Open(std::int64_t number) const;
    /// Sets a project on what is selected in a window, whatever project it has. The product passes over what is open:
    /// answers how many have another project for that.
    std::int64_t SetProject(const Ref<HostExplorer>& window, const std::string& project) const;
    /// The same with a project that is put on the list without rules; fails (5) with the product's words when it
    /// refuses the name.
    std::int64_t SetNewProject(const Ref<HostExplorer>& window, const std::string& project) const;
    /// Shows the form with the rules of a project, or with the first project when that isn't on the list.
    void ShowRules(const std::string& project) const;
    void Delete(const Numbers& numbers) const;
    /// Moves an activity to other times; false when a handler refused it. Fails (5) when it is open with changes that
    /// aren't saved, since they would be saved along.
    bool Move(std::int64_t number, const TimeSpan& times) const;
    /// Makes an appointment in the work log, which the product takes for an activity.
    void Create(const TimeSpan& times) const;
    /// Takes the last step back, and answers what became of it in a sentence. Fails with `StepError`.
    std::string Undo() const;
    /// The same with the last undo, as long as nothing else was done since.
    std::string Redo() const;

    /// The projects of the list, as the product shows them; none while it isn't there.
    std::vector<std::string> Projects() const;

private:
    std::vector<Ref<OutlookItem>> ItemsOf(const Numbers& numbers) const;
    /// Does work and sets a project, as one step.
    std::int64_t SetProjectAfter(
        const std::function<void()>& work, const Ref<HostExplorer>& window, const std::string& project) const;
    void AddProject(const std::string& project) const;
    /// The window of an activity; nothing when it isn't open.
    Ref<HostInspector> InspectorOf(std::int64_t number) const;
    void AsStep(const Numbers& numbers, const std::string& caption, const std::function<void()>& work) const;

    Session& mSession;
};

}
