#pragma once

#include "base/Date.h"
#include "base/Subscription.h"
#include "base/Watched.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TracedObject.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/Inspector.h"
#include "platform/objectmodel/Pages.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tempodial {

/// The companion of one window that shows an appointment: for an activity it has a toolbar of its own, fills the page
/// and decides at the close what is saved; from any other window it keeps away.
class TempodialInspector final : public TracedObject, public std::enable_shared_from_this<TempodialInspector>
{
public:
    explicit TempodialInspector(Ref<const Platform> platform);

    Watched<Inspector> mInspector;

    /// Takes the window that just came into being; the number is shown in traces and keeps the buttons of windows
    /// apart.
    void Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main,
        const Ref<Inspector>& inspector, std::int32_t id);
    /// Lets everything go; a second call is harmless.
    void Terminate();
    /// Hears nothing of the item any more: its window closes, or another window's companion has taken its place.
    void StopHearingItem();
    /// The item shown, nothing when there is none.
    Ref<AppointmentItem> GetItem() const;
    /// Fills the page's list of projects anew.
    void UpdateProjectDropdown();
    /// Fills the page's lists, the keywords from what the page shows.
    void UpdateFormDropdowns();

    void mCurrentItem_Open(bool& cancel);
    void mCurrentItem_Close(bool& cancel);
    void mCurrentItem_Write(bool& cancel);
    void mInspector_close();
    void mSaveCloseCommandBarButton_Click(const Ref<CommandBarButton>& control, bool& cancelDefault);
    void mViewProjectCommandBarButton_Click(const Ref<CommandBarButton>& control, bool& cancelDefault);
    void mHelpCommandBarButton_Click(const Ref<CommandBarButton>& control, bool& cancelDefault);

private:
    bool IsOurItem();
    bool IsActive(const Attempt& attempt);
    void BindControls(const Attempt& attempt);
    /// Asks whether changes are to be saved and does so or takes them back; false when the window has to stay.
    bool SettleChanges(const Attempt& attempt);
    void LeaveRegister(const Attempt& attempt);
    Ref<UserProperty> Property(const std::string& name);
    /// The moment that a control shows, be it as a text; fails (13) without one.
    Date MomentOf(const Ref<PageControl>& control) const;

    void CreateMyToolbars();
    /// Takes this add-in's toolbar away and shows the standard one.
    void RestoreToolbars(const Attempt& attempt);
    void AddSaveCloseButton(const Attempt& attempt, const Ref<CommandBar>& standard, const Ref<CommandBar>& mine);
    void AddViewProjectButton(const Attempt& attempt, const Ref<CommandBar>& mine);
    void AddHelpButton(const Attempt& attempt, const Ref<CommandBar>& standard, const Ref<CommandBar>& mine);

    /// Writes what the page shows into the item; false when the project was refused, which the user is told.
    bool WriteAll();
    bool IsAnyDataChanged();
    bool IsUnbound();
    bool IsBoundData();
    void ReverseAll();
    void ReverseUnbound();
    void Reversebound();
    void ResetAll();
    void ResetUnbound();
    void Resetbound();
    void ResetKeys();
    void InitUnbound();
    /// Puts the keyword and the tick back to what a new activity has.
    void ClearFormProperties();
    void Writebound();
    void writeunbound();
    /// Makes a keyword chosen on the page a rule of the page's project.
    void SaveRules();

    Ref<TempodialMain> mMain;
    /// True while a close that was accepted is carried out.
    bool mClosed = false;
    std::int32_t mID = 0;
    /// True when the item is an activity.
    bool mIsOurs = false;
    Ref<AppointmentItem> mCurrentItem;
    /// Ends before the item is let go: the companion of a window that closes asks the item, but hears nothing of it.
    Subscription mItemEvents;
    Watched<CommandBarButton> mSaveCloseCommandBarButton;
    Watched<CommandBarButton> mViewProjectCommandBarButton;
    Ref<CommandBarButton> mDeleteCommandBarButton;
    Watched<CommandBarButton> mHelpCommandBarButton;

    // The page's controls, and the values that they had when the item last counted as unchanged.
    Ref<PageControl> mProjectControl;
    Ref<PageControl> mDescControl;
    std::string mOldKeyword;
    Ref<PageControl> mApplicationControl;
    Ref<PageControl> mSubjectControl;
    std::string mOldDescription;
    Ref<PageControl> mPeopleControl;
    std::string mOldPeople;
    Ref<PageControl> mApplyControl;
    Ref<PageControl> mStartControl;
    Date mOldStart;
    Date mOldEnd;
    Ref<PageControl> mEndControl;
    std::string mOldProject;
};

}
