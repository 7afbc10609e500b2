#include "base/Number.h"
#include "base/Text.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/worklog/TempodialWorkLog.h"

namespace tempodial {

void TempodialWorkLog::LoadForms()
{
    const auto attempt = Failing("LoadForms error ", LineShape::TextBlankStep);
    // The message box lets events in, and they may end the add-in.
    const auto self = shared_from_this();
    const auto folder = GetSyncedWorkLog(false);
    if (!folder) {
        return;
    }

    mStage = "buildpath";
    Trace("Load form");
    const auto path = attempt.Get([&] { return mMain->mUtils->GetPathToInstallFile(mMain->mStrings->mFormName); });
    mStage = "CreateItemfromTemplate";
    const auto item = attempt.Get([&] { return mApplication->CreateItemFromTemplate(path, folder); });
    attempt.Say([&] { return "form item: " + item->MessageClass(); });
    mStage = "assign FD";
    const auto form = attempt.Get([&] { return item->FormDescription(); });
    mStage = "init FD";
    attempt([&] { form->SetDisplayName("Activity"); });
    attempt([&] { form->PublishForm(FormRegistry::Personal); });
    attempt.Say([&] { return "form description: " + form->MessageClass(); });
    attempt.Say([&] { return "LoadForms Loaded Form: " + std::to_string(static_cast<std::int32_t>(form->Class())); });
    if (!attempt.Get([&] { return form->MessageClass() == mMain->mStrings->mFormClass; })) {
        attempt(
            [&] { mPlatform->messageBox->Show("Form not in sync. cannot run", { Answer::Ok }, MessageIcon::None); });
    }
    attempt([&] { item->Close(CloseMode::Discard); });

    attempt([&] {
        mLogItems.Set(folder->Items(), { .ItemAdd = GuardedHandler(self, &TempodialWorkLog::mLogItems_ItemAdd) });
    });
}

void TempodialWorkLog::TempodialWorkLog_CreateWorkLog(bool newVersion)
{
    const auto attempt = Failing("create views error ", LineShape::TextBlankStep);
    mStage = "Entry";
    const auto folder = GetSyncedWorkLog(true);
    mStage = "got log";
    Trace("create log? New version? " + std::string(BooleanText(newVersion)));
    if (newVersion && !mCreated && folder) {
        RefreshTableView(attempt, folder);
    }
    CreateViews(folder);
}

void TempodialWorkLog::RefreshTableView(const Attempt& attempt, const Ref<MAPIFolder>& folder)
{
    mStage = "refresh cat view";
    Trace("refresh view");
    const auto views = attempt.Get([&] { return folder->Views(); });
    const auto stream = OpenInstallFile(attempt, mMain->mStrings->mTableView);
    std::string text;
    if (stream) {
        text = ReadToEnd(attempt, stream);
        Trace("Got view");
    } else {
        Trace("Not got view");
    }
    mStage = "Views.update";
    const auto view = attempt.Get([&] { return views->ItemNamed(mMain->mStrings->mTableViewName); });
    mStage = "Views.Add complete";
    if (!view) {
        mStage = "no objView";
        Trace("No objView - that's odd?");
    } else {
        UpdateXml(attempt, view, text);
        Trace("Refreshed view");
    }
}

Ref<TextStream> TempodialWorkLog::OpenInstallFile(const Attempt& attempt, const std::string& filename)
{
    mStage = "OpenDataFile";
    return attempt.Get([&] {
        return mPlatform->fileSystem->OpenTextFile(
            mMain->mUtils->GetPathToInstallFile(filename), OpenMode::Reading, false);
    });
}

std::string TempodialWorkLog::ReadToEnd(const Attempt& attempt, const Ref<TextStream>& stream)
{
    mStage = "ReadAll";
    auto text = attempt.Get([&] { return stream->ReadAll(); });
    attempt([&] { stream->Close(); });
    return text;
}

void TempodialWorkLog::UpdateXml(const Attempt& attempt, const Ref<View>& view, const std::string& text)
{
    mStage = "Update XML";
    const auto document = attempt.Get([&] { return mPlatform->xml->NewDocument(); });
    // An unreadable definition must not wipe out the view.
    if (attempt.Get([&] { return document->LoadXML(text); })) {
        attempt([&] { view->SetXML(document->Xml()); });
    }
    attempt([&] { view->Save(); });
}

void TempodialWorkLog::CreateViews(const Ref<MAPIFolder>& worklogfolder)
{
    const auto attempt = Failing("create views error ", LineShape::TextBlankStep);
    const auto& strings = *mMain->mStrings;
    Trace("Attempt to create the views");
    mStage = "set views";
    const auto views = attempt.Get([&] { return worklogfolder->Views(); });
    if (!views) {
        return;
    }
    CreateMyView(views, strings.mTableViewName, strings.mTableView, ViewType::Table);
    CreateMyView(views, strings.mCalendarViewName, "", ViewType::Calendar);
    if (const auto view = attempt.Get([&] { return views->ItemNamed(strings.mCalendarViewName); })) {
        UpdateTimeScale(attempt, view);
    } else {
        Trace("cal view failed to add!");
    }

    const auto count = attempt.Get([&] { return views->Count(); });
    for (std::int32_t index = 1; index <= count; ++index) {
        std::string name;
        if (attempt.Get([&] {
                const auto view = views->Item(index);
                name = view->Name();
                return view->ViewType() == ViewType::Calendar && InStr(name, strings.mLogName) == 0;
            })) {
            mMain->mDefaultCalendarView = name;
            Trace("default name " + name);
            break;
        }
    }
}

void TempodialWorkLog::UpdateTimeScale(const Attempt& attempt, const Ref<View>& view)
{
    const auto document = attempt.Get([&] { return mPlatform->xml->NewDocument(); });
    attempt([&] { document->LoadXML(view->XML()); });
    const auto node = attempt.Get([&] { return document->SelectSingleNode("view/displaytimeunits"); });
    if (!node) {
        mStage = "no view/displaytimeunits!";
        return;
    }
    const auto& displayTime = mMain->mConfig->mDisplayTime;
    if (!attempt.Get([&] { return node->Text() == displayTime; })) {
        attempt([&] { node->SetText(displayTime); });
        attempt([&] { view->SetXML(document->Xml()); });
        attempt([&] { view->Save(); });
    }
}

void TempodialWorkLog::CreateMyView(
    const Ref<Views>& objviews, const std::string& myName, const std::string& filename, ViewType myType)
{
    const auto attempt = Failing("create views error ", LineShape::TextBlankStep);
    Trace("Attempt to create the view");
    mStage = "set views";
    if (!objviews || attempt.Get([&] { return objviews->ItemNamed(myName); })) {
        return;
    }
    std::string text;
    if (!filename.empty()) {
        text = ReadToEnd(attempt, OpenInstallFile(attempt, filename));
    }
    mStage = "Views.count";
    attempt.Say([&] { return " view count: " + std::to_string(objviews->Count()); });
    mStage = "Views.add";
    const auto view = attempt.Get([&] { return objviews->Add(myName, myType, ViewSaveOption::ThisFolderEveryone); });
    mStage = "Views.Add complete";
    if (!view) {
        mStage = "no objView";
        Trace("No added objView!");
    } else if (!text.empty()) {
        UpdateXml(attempt, view, text);
    }
}

bool TempodialWorkLog::CheckView(const Ref<MAPIFolder>& worklogfolder, const std::string& view)
{
    const auto attempt = Failing("check views error ", LineShape::TextBlankStep);
    const bool present = attempt.Get([&] { return static_cast<bool>(worklogfolder->Views()->ItemNamed(view)); });
    if (!present) {
        Trace("View Absent: " + view);
    }
    return present;
}

void TempodialWorkLog::ChangeView(std::string viewName)
{
    const auto attempt = Failing("View error ", LineShape::TextBlankStep);
    mStage = "new view";
    if (!CheckView(mFolder, viewName)) {
        CreateViews(mFolder);
    }
    if (attempt.Get([&] {
            const auto shown = mApplication->ActiveExplorer()->CurrentFolder()->EntryID();
            return shown == GetCalendarID();
        })) {
        Trace("new view is " + viewName);
        attempt([&] { mApplication->ActiveExplorer()->SetCurrentView(viewName); });
    }
    mCurrentView = std::move(viewName);
}

void TempodialWorkLog::SetTableView()
{
    const auto attempt = Failing("TableView error ", LineShape::TextBlankStep);
    mStage = "set view";
    attempt([&] { ChangeView(mMain->mStrings->mTableViewName); });
}

void TempodialWorkLog::SetCalendarView()
{
    const auto attempt = Failing("CalView error ", LineShape::TextBlankStep);
    mStage = "set cal view";
    attempt([&] { ChangeView(mMain->mStrings->mCalendarViewName); });
}

void TempodialWorkLog::SwitchingToTasklog()
{
    const auto attempt = Failing("Switch error ", LineShape::TextBlankStep);
    mStage = "switch";
    attempt([&] { ChangeView(mCurrentView); });
}

void TempodialWorkLog::GoToLog(bool /*override*/)
{
    const auto attempt = Failing("gotolog error ", LineShape::TextBlankStep);
    mStage = "display";
    const auto folder = GetSyncedWorkLog(false);
    Trace("go to log");
    if (!folder) {
        return;
    }
    if (!attempt.Get([&] { return mApplication->ActiveExplorer()->CurrentFolder()->EntryID() == folder->EntryID(); })) {
        attempt([&] { mApplication->ActiveExplorer()->SetCurrentFolder(folder); });
        ChangeView(mCurrentView);
    }
}

}
