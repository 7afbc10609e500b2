#include "desktop/LogDoings.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "desktop/DesktopStrings.h"
#include "desktop/RuleForm.h"
#include "forms/ModelHands.h"
#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"
#include "review/RuledProject.h"
#include "session/ActivityGesture.h"
#include "session/Steps.h"
#include "session/WorkLogFolder.h"

#include <algorithm>
#include <optional>

namespace tempodial {

namespace {

constexpr auto UndoName = "Undo";
constexpr auto RedoName = "Redo";

/// How many steps are looked through for what can be done again.
constexpr std::int64_t MostSteps = 500;

/// The number of the newest undo that holds, unless something else was done since; takes the steps newest first.
std::optional<std::int64_t> UndoToTakeBack(const std::vector<Step>& steps)
{
    const auto isUndo = [&steps](std::int64_t number) {
        return std::any_of(
            steps.begin(), steps.end(), [number](const Step& step) { return step.number == number && step.undoes; });
    };
    for (const auto& step : steps) {
        // What was taken back, and what took an undo back, are done with.
        if (step.isTakenBack || (step.undoes && isUndo(*step.undoes))) {
            continue;
        }
        return step.undoes ? std::optional(step.number) : std::nullopt;
    }
    return std::nullopt;
}

bool IsListed(const std::vector<std::string>& projects, const std::string& project)
{
    return std::any_of(
        projects.begin(), projects.end(), [&](const std::string& name) { return EqualIgnoringCase(name, project); });
}

/// Lets the product have the projects as a step that was taken back has left them, since it keeps its own list and
/// would write that again.
void TakeProjects(const LogDoings& doings, const Session& session, const Step& step)
{
    if (!step.rulesAfter || !session.IsConnected()) {
        return;
    }
    auto& addIn = session.AddIn();
    const auto kept = RuledProject::ReadAll(session.Profile());
    session.Profile().Registry()->Together([&] {
        for (const auto& project : kept) {
            const auto& name = project.name;
            if (addIn.GetProjectSubRule(name) != project.subjectRule
                || addIn.GetProjectNotSubRule(name) != project.notSubjectRule
                || addIn.GetProjectPeopleRule(name) != project.peopleRule
                || addIn.GetProjectPrecedence(name) != project.precedence || !IsListed(doings.Projects(), name)) {
                addIn.UpdateorAddProject(
                    name, project.subjectRule, project.notSubjectRule, project.peopleRule, project.precedence, false);
            }
        }
        for (const auto& name : doings.Projects()) {
            if (std::none_of(kept.begin(), kept.end(),
                    [&](const RuledProject& project) { return EqualIgnoringCase(project.name, name); })) {
                addIn.DeleteProject(name);
            }
        }
    });
}

std::string Sentence(const char* verb, const UndoneStep& undone)
{
    auto text = std::string(verb) + ": " + undone.step.command + PartSeparator + ActivitiesText(undone.items.restored);
    if (undone.items.kept > 0) {
        text += PartSeparator + std::to_string(undone.items.kept) + " changed since and kept";
    }
    return text;
}

}

std::vector<Ref<OutlookItem>> LogDoings::ItemsOf(const Numbers& numbers) const
{
    // What is gone since it was drawn isn't selected any more.
    const auto items = ItemsNumbered(mSession.Profile(), numbers);
    return { items.begin(), items.end() };
}

void LogDoings::AsStep(const Numbers& numbers, const std::string& caption, const std::function<void()>& work) const
{
    GestureAsStep(mSession.Profile(), ItemsOf(numbers), caption, work);
}

void LogDoings::Select(HostExplorer& window, const Numbers& numbers) const
{
    window.Select(ItemsOf(numbers));
}

void LogDoings::Open(std::int64_t number) const
{
    if (const auto inspector = InspectorOf(number)) {
        // Two windows would show one item, and each would drop what the other holds.
        mSession.Windows().ActivateInspector(inspector);
    } else {
        mSession.Windows().OpenInspector(ItemNumbered(mSession.Profile(), number));
    }
}

Ref<HostInspector> LogDoings::InspectorOf(std::int64_t number) const
{
    for (const auto& inspector : mSession.Windows().OpenInspectors()) {
        if (inspector->ShownItem() && inspector->ShownItem()->Number() == number) {
            return inspector;
        }
    }
    return nullptr;
}

std::int64_t LogDoings::SetProject(const Ref<HostExplorer>& window, const std::string& project) const
{
    return SetProjectAfter([] {}, window, project);
}

std::int64_t LogDoings::SetNewProject(const Ref<HostExplorer>& window, const std::string& project) const
{
    return SetProjectAfter([&] { AddProject(project); }, window, project);
}

std::int64_t LogDoings::SetProjectAfter(
    const std::function<void()>& work, const Ref<HostExplorer>& window, const std::string& project) const
{
    if (mSession.Windows().ActiveExplorer() != window) {
        // The product takes what is selected in the window that is in front.
        mSession.Windows().ActivateExplorer(window);
    }
    const auto selected = SelectedNumbers(*window);
    GestureAsStep(mSession.Profile(), SelectedItems(*window), "Set project " + project, [&] {
        work();
        mSession.Mailbox()->ChoosingProjects(
            ProjectChoice::Person, [&] { mSession.AddIn().SetProjectForItems(project, true, false, {}, {}, true); });
    });
    return std::count_if(selected.begin(), selected.end(), [&](std::int64_t number) {
        const auto activity = ActivityNumbered(mSession.Profile(), number);
        return activity && activity->project != project && InspectorOf(number);
    });
}

void LogDoings::AddProject(const std::string& project) const
{
    constexpr auto Medium = "2";
    const auto refusal = mSession.AddIn().UpdateorAddProject(project, "", "", "", Medium, true);
    if (!refusal.empty()) {
        throw Failure(Error::InvalidCall, refusal);
    }
}

void LogDoings::ShowRules(const std::string& project) const
{
    mSession.AddIn().ShowSettingsForm(project, nullptr);
    const auto projects = Projects();
    if (std::find(projects.begin(), projects.end(), project) != projects.end()) {
        // Nobody's activity asked for it, and then the product shows the first of the list.
        ModelHands(*mSession.Forms()).Choose(RuleForm::FormClass, "ProjectComboBox", project);
    }
}

void LogDoings::Delete(const Numbers& numbers) const
{
    AsStep(numbers, "Delete", [&] {
        for (const auto& item : ItemsOf(numbers)) {
            mSession.Windows().User().Delete(item.As<StoreItem>());
        }
    });
}

bool LogDoings::Move(std::int64_t number, const TimeSpan& times) const
{
    const auto item = ItemNumbered(mSession.Profile(), number);
    if (item->HasChanges()) {
        throw Failure(Error::InvalidCall,
            "It stays where it was, since it is open with changes that aren't saved: save them or close its window, "
            "and move it then.");
    }
    return RescheduleAsStep(mSession.Profile(), item, times.start, times.end);
}

void LogDoings::Create(const TimeSpan& times) const
{
    ItemData appointment;
    appointment.messageClass = "IPM.Appointment";
    appointment.start = times.start;
    appointment.end = times.end;
    mSession.Windows().User().Create(WorkLogOf(mSession.Profile()), std::move(appointment));
}

std::string LogDoings::Undo() const
{
    const auto undone = Steps(mSession.Profile()).Undo(std::nullopt, UndoName);
    TakeProjects(*this, mSession, undone.step);
    return Sentence("Undone", undone);
}

std::string LogDoings::Redo() const
{
    Steps steps(mSession.Profile());
    const auto undo = UndoToTakeBack(steps.Newest(MostSteps));
    if (!undo) {
        throw StepError("there is nothing to do again: the last thing done was no undo");
    }
    const auto undone = steps.Undo(*undo, RedoName);
    TakeProjects(*this, mSession, undone.step);
    return Sentence("Done again", undone);
}

std::vector<std::string> LogDoings::Projects() const
{
    std::vector<std::string> projects;
    if (mSession.IsConnected()) {
        mSession.AddIn().GetProjects(projects, false, false, false);
    }
    return projects;
}

}
