#include "scenarios/Scripts.h"

namespace tempodial {

namespace {

constexpr auto Settings = "Pro&ject Settings...";

Json CancelJob()
{
    return { { "do", "form.click" }, { "form", "ProgressBarForm" }, { "control", "LoadCancel" } };
}

Json CloseExplorer(int explorer)
{
    return { { "do", "explorer.close" }, { "explorer", explorer } };
}

void AddProject(DrivenPerson& person, const std::string& project, const std::string& rule)
{
    person.Menu(1, { Settings });
    person.Type(SettingsForm, "ProjectComboBox", project);
    person.Type(SettingsForm, "SubjectText", rule);
    person.Click(SettingsForm, "SaveandCloseButton");
}

}

void Morning(DrivenPerson& person)
{
    person.WriteTracker();
    person.Start();
    person.GoTo(1, DrivenPerson::Log);
    const auto inspector = person.OpenFirst("budget");
    person.Set(inspector, "ProjectComboBox", "Plan");
    person.Set(inspector, "DescCombo", "budget");
    person.Set(inspector, "ApplyCheckBox", true);
    person.Toolbar(inspector, SaveAndClose);
    person.Menu(1, { "Create Activity &Report..." });
    person.Check("ReportForm", "ProjectOption");
    person.Click("ReportForm", "Command1");
    person.Do(CloseExplorer(1));
}

void Closings(DrivenPerson& person)
{
    person.WriteTracker();
    person.Start();
    person.GoTo(1, DrivenPerson::Log);
    // Nothing changed.
    person.CloseInspector(person.OpenFirst("budget"));
    // Changed, with each answer.
    for (const auto* answer : { "no", "yes" }) {
        const auto inspector = person.OpenFirst("budget");
        person.Set(inspector, "ProjectComboBox", answer == std::string("no") ? "Lost" : "Kept");
        person.Answers({ "cancel", answer });
        person.CloseInspector(inspector);
        person.CloseInspector(inspector);
    }
    // A project that is refused, at the question and at the button.
    const auto refused = person.OpenFirst("letter");
    person.Set(refused, "ProjectComboBox", "a|b");
    person.Answers({ "yes", "ok", "ok" });
    person.CloseInspector(refused);
    person.Toolbar(refused, SaveAndClose);
    person.Answers({ "no" });
    person.CloseInspector(refused);
    // The tick alone is no change, but the button takes it.
    const auto ticked = person.OpenFirst("minutes");
    person.Set(ticked, "ApplyCheckBox", true);
    person.CloseInspector(ticked);
    const auto applied = person.OpenFirst("minutes");
    person.Set(applied, "ApplyCheckBox", true);
    person.Set(applied, "ProjectComboBox", "Minutes");
    person.Set(applied, "DescCombo", "minutes");
    person.Toolbar(applied, SaveAndClose);
    // A save in between.
    const auto saved = person.OpenFirst("letter");
    person.Set(saved, "SubjectBox", "a longer letter");
    person.Do({ { "do", "inspector.save" }, { "inspector", saved } });
    person.CloseInspector(saved);
    person.Do(CloseExplorer(1));
}

void Windows(DrivenPerson& person)
{
    person.WriteTracker();
    person.Start(2);
    person.Do({ { "do", "explorer.open" }, { "commandBars", false } });
    person.Do({ { "do", "explorer.activate" }, { "explorer", 3 } });
    person.Do({ { "do", "explorer.ready" }, { "explorer", 3 } });
    person.Do({ { "do", "explorer.activate" }, { "explorer", 3 } });
    person.GoTo(1, DrivenPerson::Log);
    person.GoTo(2, "Calendar");
    person.Do({ { "do", "explorer.beside" }, { "explorer", 2 }, { "folders", { "Calendar", DrivenPerson::Log } } });
    person.Do({ { "do", "explorer.beside" }, { "explorer", 1 }, { "folders", { DrivenPerson::Log, "Calendar" } } });
    person.GoTo(1, DrivenPerson::Log);
    const auto first = person.OpenFirst("budget");
    const auto second = person.OpenFirst("letter");
    person.Set(first, "SubjectBox", "changed");
    person.Toolbar(first, SaveAndClose);
    person.Toolbar(second, "&Tempodial Help");
    person.Toolbar(second, Settings);
    person.Do({ { "do", "explorer.die" }, { "explorer", 3 } });
    person.Do(CloseExplorer(2));
    person.CloseInspector(second);
    person.Do(CloseExplorer(1));
}

void Dialogs(DrivenPerson& person)
{
    person.WriteTracker();
    person.Start();
    person.GoTo(1, DrivenPerson::Log);
    AddProject(person, "Plan", "budget");
    // The settings: each question with each answer, the refusals, and a removal.
    person.Menu(1, { Settings });
    person.Choose(SettingsForm, "ProjectComboBox", "Plan");
    for (const auto* answer : { "cancel", "no", "yes" }) {
        if (answer == std::string("yes")) {
            person.Choose(SettingsForm, "ProjectComboBox", "Plan");
        }
        person.Type(SettingsForm, "SubjectText", std::string("budget ") + answer);
        person.Answers({ answer });
        person.Choose(SettingsForm, "ProjectComboBox", "Wish");
    }
    person.Type(SettingsForm, "ProjectComboBox", "New");
    person.Choose(SettingsForm, "ProjectComboBox", "Wish");
    person.Type(SettingsForm, "ProjectComboBox", "a|b");
    person.Click(SettingsForm, "SaveButton");
    person.Click(SettingsForm, "CancelButton");
    person.Menu(1, { Settings });
    person.Type(SettingsForm, "PrecedenceCombo", "Highest");
    person.Type(SettingsForm, "SubjectText", "x");
    person.Click(SettingsForm, "SaveandCloseButton");
    person.Click(SettingsForm, "CancelButton");
    person.Menu(1, { Settings });
    person.Choose(SettingsForm, "ProjectComboBox", "Plan");
    for (const auto* answer : { "no", "yes" }) {
        person.Check(SettingsForm, "ApplyPastCheck");
        person.Answers({ answer });
        person.CloseForm(SettingsForm);
        person.Menu(1, { Settings });
    }
    for (const auto* answer : { "no", "yes" }) {
        person.Choose(SettingsForm, "ProjectComboBox", "Wish");
        person.Answers({ answer });
        person.Click(SettingsForm, "DeleteButton");
    }
    person.Click(SettingsForm, "CancelButton");
    // The report: dates that are the wrong way round, then cancelled.
    person.Menu(1, { "Create Activity &Report..." });
    person.Type("ReportForm", "YearComboTo", "2005");
    person.Click("ReportForm", "Command1");
    person.Click("ReportForm", "Command2");
    // A project for a span of time, then by a name that is new.
    person.Menu(1, { "Set Project for &Activities..." });
    person.Choose("SetProjectForm", "ProjectComboBox", "Plan");
    person.Check("SetProjectForm", "SpecifiedCheck");
    person.Check("SetProjectForm", "OverwriteCheck");
    person.Click("SetProjectForm", "Command1");
    person.Menu(1, { "Set Project for &Activities..." });
    person.Click("SetProjectForm", "Command2");
    // The problem report, the about box, the list and the calendar.
    person.Menu(1, { "&Help", "&Report a Problem" });
    person.Type("DiagsForm", "ExpectedText", "a plan");
    person.Type("DiagsForm", "ActualText", "a letter");
    person.Click("DiagsForm", "OK");
    person.Menu(1, { "&Help", "&Report a Problem" });
    person.Click("DiagsForm", "Cancel");
    person.Menu(1, { "&Help", "&About Tempodial" });
    person.Click("AboutBoxForm", "OK");
    person.Menu(1, { "&Help", "Tempodial &Help" });
    person.Menu(1, { "View Activities in a &List" });
    person.Menu(1, { "View Activities in a &Calendar" });
    person.Do(CloseExplorer(1));
}

void CancelledJobs(DrivenPerson& person)
{
    person.WriteTracker();
    person.Start();
    person.AtPump(3, { CancelJob() });
    person.Refresh(1);
    person.Refresh(1);
    AddProject(person, "Plan", "budget");
    // The back-application, from the settings.
    person.Menu(1, { Settings });
    person.Choose(SettingsForm, "ProjectComboBox", "Plan");
    person.Check(SettingsForm, "ApplyPastCheck");
    person.AtPump(2, { CancelJob() });
    person.Click(SettingsForm, "SaveandCloseButton");
    // A report, and a project for a span of time.
    person.Menu(1, { "Create Activity &Report..." });
    person.AtPump(2, { CancelJob() });
    person.Click("ReportForm", "Command1");
    person.Menu(1, { "Set Project for &Activities..." });
    person.Type("SetProjectForm", "ProjectComboBox", "Span");
    person.Check("SetProjectForm", "SpecifiedCheck");
    person.Click("SetProjectForm", "Command1");
    person.Do(CloseExplorer(1));
}

void LastWindowInASync(DrivenPerson& person)
{
    person.WriteTracker();
    person.Start();
    person.AtPump(3, { CloseExplorer(1) });
    person.Refresh(1);
}

std::vector<Script> AllScripts()
{
    return { { "Morning", Morning }, { "Closings", Closings }, { "Windows", Windows }, { "Dialogs", Dialogs },
        { "CancelledJobs", CancelledJobs }, { "LastWindowInASync", LastWindowInASync } };
}

}
