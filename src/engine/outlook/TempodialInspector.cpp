#include "engine/outlook/TempodialInspector.h"

#include "base/Number.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/foundation/TempodialWin32APICalls.h"

namespace tempodial {

TempodialInspector::TempodialInspector(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialInspector::Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main,
    const Ref<Inspector>& inspector, std::int32_t id)
{
    const auto attempt = Failing("Initialize error ", LineShape::TextAmpersandStep);
    mTraceInfo = "TDInspector";
    mLog = applog;
    attempt.Say([&] {
        return "Init inspector " + std::to_string(id) + " " + inspector->Caption() + " revision 1 TempodialInspector";
    });
    mStage = "init";
    mMain = main;
    mID = id;
    mStage = "set items";
    mClosed = false;
    mIsOurs = false;
    mStage = "set minspector ";
    attempt([&] {
        mInspector.Set(
            inspector, { .Close = GuardedHandler(shared_from_this(), &TempodialInspector::mInspector_close) });
    });
    mStage = "set currentitem ";
    attempt([&] {
        const auto item = inspector->CurrentItem().As<AppointmentItem>();
        mItemEvents
            = item->Subscribe({ .Open = GuardedHandler(shared_from_this(), &TempodialInspector::mCurrentItem_Open),
                .Write = GuardedHandler(shared_from_this(), &TempodialInspector::mCurrentItem_Write),
                .Close = GuardedHandler(shared_from_this(), &TempodialInspector::mCurrentItem_Close) });
        mCurrentItem = item;
    });
    attempt.Say([&] { return "caption: " + mInspector->Caption(); });
    if (IsOurItem()) {
        mIsOurs = true;
        return; // Its window has no bars yet that could be worked: they wait for the opening.
    }
    attempt.Say([&] { return "not one of ours: " + std::to_string(mInspector->CommandBars()->Count()); });
    RestoreToolbars(attempt);
}

void TempodialInspector::Terminate()
{
    const auto attempt = Failing("Initialize error ", LineShape::TextOnly); // kept: the words of another routine
    if (mLog) {
        attempt.Say("term inspector " + std::to_string(mID));
    }
    mInspector.Clear();
    mMain = nullptr;
    mStage.clear();
    mLog = nullptr;
    StopHearingItem();
    mCurrentItem = nullptr;
    // kept: the other controls go with this object
    mProjectControl = nullptr;
    mDescControl = nullptr;
    mSubjectControl = nullptr;
    mPeopleControl = nullptr;
    mSaveCloseCommandBarButton.Clear();
    mViewProjectCommandBarButton.Clear();
    mDeleteCommandBarButton = nullptr;
    mHelpCommandBarButton.Clear();
}

void TempodialInspector::StopHearingItem()
{
    mItemEvents.End();
}

Ref<AppointmentItem> TempodialInspector::GetItem() const
{
    return mCurrentItem;
}

bool TempodialInspector::IsOurItem()
{
    return Failing("Isouritem error ", LineShape::TextOnly).Get([&] {
        return mCurrentItem && mMain->IsOurItem(mCurrentItem);
    });
}

void TempodialInspector::mCurrentItem_Open(bool& cancel)
{
    const auto attempt = Failing("Open error ", LineShape::TextBlankStep);
    Trace("Item open " + std::to_string(mID));
    if (mCurrentItem) {
        Trace("appointment");
        const bool inLog = attempt.Get([&] {
            const auto parent = mCurrentItem->Parent()->EntryID();
            return parent == mMain->GetCalendarID();
        });
        if (inLog || mIsOurs) {
            Trace("in log");
        }
        if (mIsOurs) {
            CreateMyToolbars();
            BindControls(attempt);
            InitUnbound();
            UpdateFormDropdowns();
            ResetAll();
        } else if (inLog) {
            Trace("display duplicate entry");
            attempt([&, main = mMain, item = mCurrentItem] { main->CreateCalendarDuplicate(item, true); });
            cancel = true;
        } else {
            LeaveRegister(attempt);
        }
    }
    Trace("Item open - exit " + std::to_string(mID));
    if (cancel) {
        LeaveRegister(attempt);
    }
}

void TempodialInspector::BindControls(const Attempt& attempt)
{
    mStage = "set up editpagecontrols";
    const auto controls = attempt.Get(
        [&] { return mInspector->ModifiedFormPages()->Item(mMain->mStrings->mMainPageName)->Controls(); });
    const auto bind
        = [&](Ref<PageControl>& control, const std::string& name) { attempt([&] { control = controls->Item(name); }); };
    mStage = "use editpagecontrols";
    attempt([&] { bind(mProjectControl, mMain->mStrings->mProjectComboBox); });
    mStage = "set controls up";
    bind(mDescControl, "DescCombo");
    bind(mSubjectControl, "SubjectBox");
    bind(mApplicationControl, "ApplicationBox");
    bind(mPeopleControl, "PeopleBox");
    bind(mApplyControl, "ApplyCheckBox");
    bind(mStartControl, "StartBox");
    bind(mEndControl, "EndBox");
}

void TempodialInspector::mCurrentItem_Write(bool& cancel)
{
    const auto attempt = Failing("Write error ", LineShape::TextOnly);
    Trace("Item write " + std::to_string(mID));
    if (mIsOurs && IsAnyDataChanged()) {
        attempt([&] {
            if (!WriteAll()) {
                cancel = true;
            }
        });
    }
    mStage = "exit write";
    Trace("Item write - exit");
}

void TempodialInspector::mCurrentItem_Close(bool& cancel)
{
    const auto attempt = Failing("Close error ", LineShape::TextOnly);
    Trace("Item close for us? " + std::string(BooleanText(mIsOurs)) + " closed? " + std::string(BooleanText(mClosed))
        + " " + std::to_string(mID));
    if (!mClosed) {
        mClosed = true;
        if (mIsOurs && !SettleChanges(attempt)) {
            mClosed = false;
            cancel = true;
        }
    }
    if (cancel) {
        return;
    }
    StopHearingItem();
    RestoreToolbars(attempt);
    mStage = "remove from inspector list";
    const auto silently = Failing("", LineShape::Silent);
    silently(
        [&] { Trace("Item close - exit closed? " + std::string(BooleanText(mClosed)) + " " + std::to_string(mID)); });
    LeaveRegister(silently);
    // The window's own close is still to come.
    silently([&] { mMain->KeepUntilClosed(shared_from_this()); });
}

bool TempodialInspector::SettleChanges(const Attempt& attempt)
{
    if (IsAnyDataChanged()) {
        const auto box = mPlatform->messageBox;
        const auto answer = attempt.Get([&] {
            return box->Show("Do you want to save your changes?", { Answer::Yes, Answer::No, Answer::Cancel },
                MessageIcon::Question);
        });
        switch (answer) {
        case Answer::Yes:
            Trace("Chose to save");
            if (!WriteAll()) {
                return false;
            }
            break;
        case Answer::No:
            ReverseAll();
            break;
        case Answer::Cancel:
            return false;
        default:
            return true; // The question couldn't be asked: nothing is decided about the item.
        }
    }
    ClearFormProperties();
    attempt([item = mCurrentItem] { item->Save(); });
    return true;
}

void TempodialInspector::mInspector_close()
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt.Say("Inspector-close " + std::to_string(mID));
    StopHearingItem();
    RestoreToolbars(attempt);
    LeaveRegister(attempt);
    attempt([&] { mMain->LetGoOfClosed(shared_from_this()); });
}

void TempodialInspector::mSaveCloseCommandBarButton_Click(const Ref<CommandBarButton>& /*control*/, bool& cancelDefault)
{
    const auto attempt = Failing("Save/close error ", LineShape::TextBlankStep);
    attempt.Say([&] {
        return "Save/close button clicked for " + std::to_string(mID)
            + " project: " + mProjectControl->Value().ToText();
    });
    if (!IsActive(attempt) || !mIsOurs) {
        return;
    }
    if (!WriteAll()) {
        cancelDefault = true;
        return;
    }
    Trace("Save our written changes");
    ClearFormProperties();
    const auto item = mCurrentItem;
    mStage = "call save";
    attempt([&] { item->Save(); });
    mStage = "call close";
    Failing("", LineShape::Silent)([&] { item->Close(CloseMode::Discard); });
}

void TempodialInspector::mViewProjectCommandBarButton_Click(
    const Ref<CommandBarButton>& /*control*/, bool& /*cancelDefault*/)
{
    const auto attempt = Failing("view projects error ", LineShape::TextOnly);
    attempt.Say([&] {
        return "View project settings button clicked for " + mInspector->Caption() + " " + std::to_string(mID);
    });
    attempt([&, main = mMain] { main->ShowSettingsForm(mProjectControl->Value().ToText(), shared_from_this()); });
}

void TempodialInspector::mHelpCommandBarButton_Click(const Ref<CommandBarButton>& /*control*/, bool& cancelDefault)
{
    const auto attempt = Failing("help error ", LineShape::TextOnly);
    Trace("help clicked: " + std::to_string(mID));
    if (IsActive(attempt)) {
        attempt([&] {
            TempodialWin32APICalls::OpenInShell(
                *mPlatform, mMain->mUtils->GetPathToUserGuideFile(mMain->mStrings->mUserGuideName));
        });
    }
    cancelDefault = true;
}

bool TempodialInspector::IsActive(const Attempt& attempt)
{
    return attempt.Get(
        [&] { return mMain->mApplication->ActiveInspector()->CurrentItem()->EntryID() == mCurrentItem->EntryID(); });
}

void TempodialInspector::LeaveRegister(const Attempt& attempt)
{
    attempt([&, main = mMain] {
        Ref<TempodialInspector> self = shared_from_this();
        main->RemoveInspector(self);
    });
}

Ref<UserProperty> TempodialInspector::Property(const std::string& name)
{
    return mCurrentItem->UserProperties()->Item(name);
}

}
