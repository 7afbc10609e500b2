#include "desktop/LogDoings.h"

#include "base/Failure.h"
#include "desktop/DesktopStrings.h"
#include "desktop/RuleForm.h"
#include "forms/ModelHands.h"
#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"
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
    std::vector<Ref<OutlookItem>> items;
    for (const auto number : numbers) {
        // What is gone since it was drawn isn't selected any more.
        if (ActivityNumbered(mSession.Profile(), number)) {
            items.emplace_back(ItemNumbered(mSession.Profile(), number));
        }
    }
    return items;
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
    mSession.Windows().OpenInspector(ItemNumbered(mSession.Profile(), number));
}

void LogDoings::SetProject(HostExplorer& window, const std::string& project) const
{
    GestureAsStep(mSession.Profile(), SelectedItems(window), "Set project " + project, [&] {
        mSession.Mailbox()->ChoosingProjects(
            ProjectChoice::Person, [&] { mSession.AddIn().SetProjectForItems(project, true, false, {}, {}, true); });
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
    return RescheduleAsStep(mSession.Profile(), ItemNumbered(mSession.Profile(), number), times.start, times.end);
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
    return Sentence("Undone", Steps(mSession.Profile()).Undo(std::nullopt, UndoName));
}

std::string LogDoings::Redo() const
{
    Steps steps(mSession.Profile());
    const auto undo = UndoToTakeBack(steps.Newest(MostSteps));
    if (!undo) {
        throw StepError("there is nothing to do again: the last thing done was no undo");
    }
    return Sentence("Done again", steps.Undo(*undo, RedoName));
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
