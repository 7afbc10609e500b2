#include "scenarios/ShortScripts.h"

namespace tempodial {

namespace {

/// The add-in has started, with a few slots that wait for it.
void Begin(DrivenPerson& person)
{
    person.WriteSlots();
    person.Start();
}

/// Those slots are in the work log, and one can be looked at.
void BeginWithLog(DrivenPerson& person)
{
    Begin(person);
    person.Refresh(1);
}

void OpenSettings(DrivenPerson& person)
{
    person.Menu(1, { "Pro&ject Settings..." });
}

void ProjectLife(DrivenPerson& person)
{
    OpenSettings(person);
    person.Type(SettingsForm, "ProjectComboBox", "Plan");
    person.Type(SettingsForm, "SubjectText", "budget");
    person.Click(SettingsForm, "SaveandCloseButton");
    OpenSettings(person);
    person.Choose(SettingsForm, "ProjectComboBox", "Plan");
    person.Check(SettingsForm, "ApplyPastCheck");
    person.Click(SettingsForm, "SaveButton");
    person.Answers({ "yes" });
    person.Click(SettingsForm, "DeleteButton");
    person.Click(SettingsForm, "CancelButton");
}

void Report(DrivenPerson& person)
{
    person.Menu(1, { "Create Activity &Report..." });
    person.Check("ReportForm", "ProjectOption");
    person.Click("ReportForm", "Command1");
}

/// The folder is no longer what it was; the person goes on as before.
void GoOn(DrivenPerson& person)
{
    person.Refresh(1);
    person.GoTo(1, "Inbox");
}

}

std::vector<ShortScript> ShortScripts()
{
    return {
        { "Import", Begin, [](DrivenPerson& person) { person.Refresh(1); } },
        { "ProjectLife", BeginWithLog, ProjectLife },
        { "Report", BeginWithLog, Report },
        { "FolderRenamed", Begin,
            [](DrivenPerson& person) {
                person.Do({ { "do", "folder.rename" }, { "path", DrivenPerson::Log }, { "name", "My days" } });
                GoOn(person);
            } },
        { "FolderMoved", Begin,
            [](DrivenPerson& person) {
                person.Do({ { "do", "folder.move" }, { "path", DrivenPerson::Log }, { "to", "Inbox" } });
                GoOn(person);
            } },
        { "FolderGone", Begin,
            [](DrivenPerson& person) {
                person.Do({ { "do", "folder.delete" }, { "path", DrivenPerson::Log } });
                GoOn(person);
            } },
        { "StartAndStop", [](DrivenPerson& person) { person.WriteSlots(); },
            [](DrivenPerson& person) {
                person.Start();
                person.Do({ { "do", "explorer.close" }, { "explorer", 1 } });
                person.Do({ { "do", "stop" } });
            } },
    };
}

}
