#include "engine/outlook/TempodialToolbars.h"

#include "engine/core/TempodialMain.h"
#include "engine/dialogs/DiagsForm.h"
#include "engine/dialogs/SetProjectForm.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/foundation/TempodialWin32APICalls.h"

#include <utility>

namespace tempodial {

namespace {

constexpr auto ToolbarsRevision = "revision 1 TempodialToolbars";
/// The web site that tells whether there is a newer version.
constexpr auto WebSite = "https://www.tempodial.example/";

/// Outlook's help button on "Standard", and its Help menu.
constexpr std::int32_t HelpButtonId = 984;
constexpr std::int32_t HelpMenuId = 30010;

}

/// One entry of the menu: where it is kept and what becomes of it.
struct TempodialToolbars::Entry
{
    /// Nothing for the Help menu, which is kept in `mHelpPopup`.
    WatchedButton TempodialToolbars::*button;
    Ref<CommandBarPopup> TempodialToolbars::*parent;
    std::string TempodialStrings::*caption;
    bool beginGroup;
    ClickHandler click;
    /// Nothing for an entry without a picture.
    Icon picture = nullptr;
    Icon mask = nullptr;
    const char* noPicture = "";
    const char* pictureDone = "";
};

// clang-format off
const TempodialToolbars::Entry TempodialToolbars::Entries[] = {
    { &TempodialToolbars::mRefreshTasklogSubMenu, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarTriggerSync,
        true, &TempodialToolbars::mRefreshTasklogSubMenu_Click,
        &TempodialMain::mTempodialRefreshIcon, &TempodialMain::mTempodialRefreshMaskIcon,
        "no refresh icon", "set refresh icon" },
    { &TempodialToolbars::mGoToTasklogSubMenu, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarGoTDCalendar,
        false, &TempodialToolbars::mGoToTasklogSubMenu_Click },
    { &TempodialToolbars::mTableTasklogSubMenu, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarTableView,
        false, &TempodialToolbars::mTableTaskLogSubMenu_Click },
    { &TempodialToolbars::mViewSettingsSubMenu, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarViewSettings,
        true, &TempodialToolbars::mViewSettingsSubMenu_Click,
        &TempodialMain::mTempodialIcon, &TempodialMain::mTempodialIconMask,
        "no settings icon", "" },
    { &TempodialToolbars::mSetProjectSubMenu, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarSetProject,
        false, &TempodialToolbars::mSetProjectSubMenu_Click },
    { &TempodialToolbars::mCreateReportSubMenu, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarTriggerReport,
        true, &TempodialToolbars::mCreateReportSubMenu_Click },
    { nullptr, &TempodialToolbars::mTopMenu, &TempodialStrings::mToolbarHelp,
        true, nullptr },
    { &TempodialToolbars::mFAQSubMenu, &TempodialToolbars::mHelpPopup, &TempodialStrings::mToolbarFAQ,
        false, &TempodialToolbars::mFAQSubMenu_Click },
    { &TempodialToolbars::mUpdatesSubMenu, &TempodialToolbars::mHelpPopup, &TempodialStrings::mToolbarUpdates,
        true, &TempodialToolbars::mUpdatesSubMenu_Click },
    { &TempodialToolbars::mReportProblemSubMenu, &TempodialToolbars::mHelpPopup,
        &TempodialStrings::mToolbarTriggerProblemReport,
        false, &TempodialToolbars::mReportProblemSubMenu_Click },
    { &TempodialToolbars::mAboutSubMenu, &TempodialToolbars::mHelpPopup, &TempodialStrings::mToolbarAbout,
        true, &TempodialToolbars::mAboutSubMenu_Click },
};
// clang-format on

TempodialToolbars::TempodialToolbars(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialToolbars::Initialize(
    const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& logObj, std::int32_t id)
{
    mTraceInfo = "TDToolbars: " + std::to_string(id);
    mMain = main;
    mLog = logObj;
    mID = id;
    Trace(std::string("Initialize ") + ToolbarsRevision);
}

void TempodialToolbars::Terminate()
{
    if (!mLog) {
        return; // Ended before.
    }
    const auto attempt = Failing("Toolbars Terminate error ", LineShape::TextBlankStep);
    attempt.Say("Toolbars cleanup: " + std::to_string(mID));
    mStage = "clean up";
    if (mMain) {
        mViewSettingsSubMenu.Clear();
        mCreateReportSubMenu.Clear();
        mReportProblemSubMenu.Clear();
        mTableTasklogSubMenu.Clear();
        mGoToTasklogSubMenu.Clear();
        mRefreshTasklogSubMenu.Clear();
        mTopMenu = nullptr;
        mMain = nullptr;
        mLog = nullptr;
        mRefreshButton.Clear();
        mSetProjectSubMenu.Clear();
        mAboutSubMenu.Clear();
        mHelpPopup = nullptr;
        mFAQSubMenu.Clear();
        // kept: the entry for updates goes with this object.
    }
}

bool TempodialToolbars::CreateToolbars(const Ref<Explorer>& explorer)
{
    const auto attempt = Failing("toolbars create error ", LineShape::TextBlankStep);
    mStage = "CommandBars";
    Ref<CommandBar> standard;
    const auto trace = [&](const Failure&) { Trace("too soon, try to create toolbar again later"); };
    if (!attempt([&] { standard = explorer->CommandBars()->ItemNamed("Standard"); }, trace)) {
        return false;
    }
    if (standard) {
        CreateButton(attempt, standard);
    }
    CreateMenu(attempt, attempt.Get([&] { return explorer->CommandBars()->ItemNamed("Menu Bar"); }));
    return true;
}

std::string TempodialToolbars::Tag(const std::string& caption) const
{
    return caption + std::to_string(mID);
}

void TempodialToolbars::CreateButton(const Attempt& attempt, const Ref<CommandBar>& standard)
{
    const auto caption = attempt.Get([&] { return mMain->mStrings->mToolbarTriggerSync; });
    // kept: the button of window 1 has the tag of window 12's menu entry.
    const auto tag = Tag(caption) + "2";
    AddBefore(attempt, standard, HelpButtonId,
        { .type = CommandBarControlType::Button, .id = {}, .parameter = tag, .before = {}, .temporary = true },
        [&](const auto& control) { Watch(mRefreshButton, control, &TempodialToolbars::mRefreshButton_Click); });
    Present(
        attempt, [&] { return mRefreshButton.Get(); }, caption, tag);
    attempt([&] { mRefreshButton->SetStyle(ButtonStyle::IconAndCaption); });
    mStage = "set icon";
    SetIcon(attempt, mRefreshButton, &TempodialMain::mTempodialRefreshIcon, &TempodialMain::mTempodialRefreshMaskIcon,
        "no refresh icon", "set refresh icon");
}

void TempodialToolbars::CreateMenu(const Attempt& attempt, const Ref<CommandBar>& menuBar)
{
    const auto caption = attempt.Get([&] { return mMain->mStrings->mLogNameAccessible; });
    mStage = "delete old controls";
    Failing("", LineShape::Silent)([&] { menuBar->Controls()->ItemCaptioned(caption)->Delete(); });
    attempt.Say("Create TD Menu Items: " + std::to_string(mID));
    if (!menuBar) {
        return;
    }
    mStage = "findControl";
    // kept: no control made here is found, as its tag has the id behind the caption.
    attempt([&] { mTopMenu = menuBar->FindControl({ .id = {}, .tag = caption }).As<CommandBarPopup>(); });
    if (mTopMenu) {
        return;
    }
    AddBefore(attempt, menuBar, HelpMenuId,
        { .type = CommandBarControlType::Popup, .id = {}, .parameter = "", .before = {}, .temporary = true },
        [&](const auto& control) { mTopMenu = control.template As<CommandBarPopup>(); });
    Present(
        attempt, [&] { return mTopMenu; }, caption, Tag(caption));
    for (const auto& entry : Entries) {
        CreateEntry(attempt, entry);
    }
}

void TempodialToolbars::CreateEntry(const Attempt& attempt, const Entry& entry)
{
    const auto caption = attempt.Get([&] { return (*mMain->mStrings).*entry.caption; });
    const auto control = [&]() -> Ref<CommandBarControl> {
        return entry.button ? Ref<CommandBarControl>((this->*entry.button).Get()) : mHelpPopup;
    };
    attempt([&] {
        const auto type = entry.button ? CommandBarControlType::Button : CommandBarControlType::Popup;
        const auto added = (this->*entry.parent)
                               ->Controls()
                               ->Add({ .type = type, .id = {}, .parameter = "", .before = {}, .temporary = true });
        if (entry.button) {
            Watch(this->*entry.button, added, entry.click);
        } else {
            mHelpPopup = added.As<CommandBarPopup>();
        }
    });
    Present(attempt, control, caption, Tag(caption));
    if (entry.beginGroup) {
        attempt([&] { control()->SetBeginGroup(true); });
    }
    if (entry.picture) {
        const auto& button = this->*entry.button;
        attempt([&] { button->SetStyle(ButtonStyle::IconAndCaption); });
        SetIcon(attempt, button, entry.picture, entry.mask, entry.noPicture, entry.pictureDone);
    }
}

void TempodialToolbars::AddBefore(const Attempt& attempt, const Ref<CommandBar>& bar, std::int32_t id,
    CommandBarAddition addition, const std::function<void(const Ref<CommandBarControl>&)>& keep)
{
    mStage = "Find help";
    const auto count = attempt.Get([&] { return bar->Controls()->Count(); });
    for (std::int32_t i = 1; i <= count && !addition.before; ++i) {
        if (attempt.Get([&] { return bar->Controls()->Item(i)->Id() == id; })) {
            attempt.Say("found help");
            addition.before = i;
        }
    }
    mStage = addition.before ? "add button 1" : "add button 2";
    attempt.Say(addition.before ? "add 1" : "add 2");
    attempt([&] { keep(bar->Controls()->Add(addition)); });
}

void TempodialToolbars::Present(const Attempt& attempt, const std::function<Ref<CommandBarControl>()>& control,
    const std::string& caption, const std::string& tag)
{
    attempt([&] { control()->SetCaption(caption); });
    attempt([&] { control()->SetTag(tag); });
    attempt([&] { control()->SetVisible(true); });
}

void TempodialToolbars::SetIcon(const Attempt& attempt, const WatchedButton& button, Icon picture, Icon mask,
    const std::string& noPicture, const std::string& done)
{
    if (!attempt.Get([&] { return (*mMain).*picture; })) {
        attempt.Say(noPicture);
        return;
    }
    attempt([&] { button->SetPicture((*mMain).*picture); });
    attempt([&] { button->SetMask((*mMain).*mask); });
    if (!done.empty()) {
        attempt.Say(done);
    }
}

void TempodialToolbars::Watch(WatchedButton& button, const Ref<CommandBarControl>& control, ClickHandler click)
{
    button.Set(control.As<CommandBarButton>(),
        { .Click = [weak = weak_from_this(), click](const Ref<CommandBarButton>&, bool&) {
            if (const auto held = weak.lock()) {
                // The click may end the add-in.
                const auto main = held->mMain;
                (held.get()->*click)();
            }
        } });
}

void TempodialToolbars::ListAvailable(bool available)
{
    const auto attempt = Failing("", LineShape::Silent);
    if (!attempt.Get([&] { return mTableTasklogSubMenu->Enabled() == available; })) {
        attempt([&] { mTableTasklogSubMenu->SetEnabled(available); });
    }
}

Attempt TempodialToolbars::Clicked(const std::string& words)
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt.Say(words + std::to_string(mID));
    return attempt;
}

// kept: the three ways to the log differ in what they override and in which order they show and go.

void TempodialToolbars::mRefreshButton_Click()
{
    const auto attempt = Clicked("Refresh clicked: ");
    attempt([&] { mMain->SyncData(mMain->mConfig->mSavedDataDays, true); });
    attempt([&] { mMain->GoToTasklog(false); });
}

void TempodialToolbars::mRefreshTasklogSubMenu_Click()
{
    // kept: 14, though it loads other days.
    const auto attempt = Clicked("14Tasklogsubmenu clicked: ");
    attempt([&] { mMain->SyncData(mMain->mConfig->mSavedDataDays, true); });
    attempt([&] { mMain->GoToTasklog(true); });
}

void TempodialToolbars::mGoToTasklogSubMenu_Click()
{
    const auto attempt = Clicked("ViewTasklogsubmenu clicked: ");
    attempt([&] { mMain->GoToTasklog(true); });
    attempt([&] { mMain->ChangeViewToCalendar(); });
    attempt([&] { mMain->SyncData(mMain->mConfig->mSavedDataDays, false); });
}

void TempodialToolbars::mTableTaskLogSubMenu_Click()
{
    const auto attempt = Clicked("TableTasklogsubmenu clicked: ");
    attempt([&] { mMain->ChangeViewToTable(); });
    attempt([&] { mMain->GoToTasklog(false); });
    attempt([&] { mMain->SyncData(mMain->mConfig->mSavedDataDays, false); });
}

void TempodialToolbars::mViewSettingsSubMenu_Click()
{
    const auto attempt = Clicked("ViewSettingssubmenu clicked: ");
    attempt([&] { mMain->ShowSettingsForm(mMain->mStrings->mNoProject, nullptr); });
}

void TempodialToolbars::mSetProjectSubMenu_Click()
{
    const auto attempt = Clicked("SetProject clicked: ");
    const auto form = attempt.Get([&] { return MakeRef<SetProjectForm>(mPlatform); });
    attempt([&] { form->Initialise(mMain, mLog); });
    attempt([&] { form->ShowMe(""); });
}

void TempodialToolbars::mCreateReportSubMenu_Click()
{
    const auto attempt = Clicked("CreateReportsubmenu clicked: ");
    attempt([&] { mMain->ShowReportForm(); });
}

void TempodialToolbars::mFAQSubMenu_Click()
{
    const auto attempt = Clicked("help clicked: ");
    attempt([&] {
        TempodialWin32APICalls::OpenInShell(
            *mPlatform, mMain->mUtils->GetPathToUserGuideFile(mMain->mStrings->mUserGuideName));
    });
}

void TempodialToolbars::mUpdatesSubMenu_Click()
{
    const auto attempt = Clicked("Updates clicked: ");
    attempt([&] {
        TempodialWin32APICalls::OpenInShell(
            *mPlatform, std::string(WebSite) + "update.asp?version=" + mMain->mConfig->mTDVersion);
    });
}

void TempodialToolbars::mReportProblemSubMenu_Click()
{
    const auto attempt = Clicked("ReportProblem clicked: ");
    attempt([&] { mLog->FlushIt(); });
    const auto form = attempt.Get([&] { return MakeRef<DiagsForm>(mPlatform); });
    attempt([&] { form->Initialise(mMain); });
    attempt([&] { form->Show(); });
}

void TempodialToolbars::mAboutSubMenu_Click()
{
    const auto attempt = Clicked("About clicked: ");
    attempt([&] { mMain->ShowAboutForm(); });
}

}
