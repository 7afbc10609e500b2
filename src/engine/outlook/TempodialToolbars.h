#pragma once

#include "base/Watched.h"
#include "engine/foundation/TracedObject.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/objectmodel/Explorer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tempodial {

class TempodialMain;
class TempodialStrings;

/// One explorer's button on "Standard" and its menu on "Menu Bar", with what their clicks do. The controls belong to
/// the window. None of its routines passes a failure on.
class TempodialToolbars final : public TracedObject, public std::enable_shared_from_this<TempodialToolbars>
{
public:
    explicit TempodialToolbars(Ref<const Platform> platform);

    /// Takes the id of the window; touches no control.
    void Initialize(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& logObj, std::int32_t id);
    /// Lets the controls go; a second call is harmless.
    void Terminate();
    /// Makes the button and the menu. False when the window has no bars yet: the call is to be made again.
    bool CreateToolbars(const Ref<Explorer>& explorer);
    /// Enables or disables the menu entry for the list view.
    void ListAvailable(bool available);

private:
    using WatchedButton = Watched<CommandBarButton>;
    using ClickHandler = void (TempodialToolbars::*)();
    using Icon = Ref<Picture> TempodialMain::*;
    struct Entry;

    static const Entry Entries[];

    /// The tag of a control: unlike those of the same control in other windows.
    std::string Tag(const std::string& caption) const;
    void CreateButton(const Attempt& attempt, const Ref<CommandBar>& standard);
    void CreateMenu(const Attempt& attempt, const Ref<CommandBar>& menuBar);
    void CreateEntry(const Attempt& attempt, const Entry& entry);
    /// Adds a control in front of the bar's control of an id, at the end when there is none, and hands it on.
    void AddBefore(const Attempt& attempt, const Ref<CommandBar>& bar, std::int32_t id, CommandBarAddition addition,
        const std::function<void(const Ref<CommandBarControl>&)>& keep);
    /// Captions a new control, tags it and shows it.
    void Present(const Attempt& attempt, const std::function<Ref<CommandBarControl>()>& control,
        const std::string& caption, const std::string& tag);
    /// Gives a button a picture and its mask; without the picture that is traced and no call made.
    void SetIcon(const Attempt& attempt, const WatchedButton& button, Icon picture, Icon mask,
        const std::string& noPicture, const std::string& done);
    /// Takes a control for its clicks; one that is no button fails (91).
    void Watch(WatchedButton& button, const Ref<CommandBarControl>& control, ClickHandler click);

    /// Runs the start of each click; the rest runs by the attempt that it answers.
    Attempt Clicked(const std::string& words);
    void mRefreshButton_Click();
    void mRefreshTasklogSubMenu_Click();
    void mGoToTasklogSubMenu_Click();
    void mTableTaskLogSubMenu_Click();
    void mViewSettingsSubMenu_Click();
    void mSetProjectSubMenu_Click();
    void mCreateReportSubMenu_Click();
    void mFAQSubMenu_Click();
    void mUpdatesSubMenu_Click();
    void mReportProblemSubMenu_Click();
    void mAboutSubMenu_Click();

    Ref<TempodialMain> mMain;
    std::int32_t mID = 0;
    Ref<CommandBarPopup> mTopMenu;
    Ref<CommandBarPopup> mHelpPopup;
    WatchedButton mRefreshButton;
    WatchedButton mRefreshTasklogSubMenu;
    WatchedButton mGoToTasklogSubMenu;
    WatchedButton mTableTasklogSubMenu;
    WatchedButton mViewSettingsSubMenu;
    WatchedButton mSetProjectSubMenu;
    WatchedButton mCreateReportSubMenu;
    WatchedButton mFAQSubMenu;
    WatchedButton mUpdatesSubMenu;
    WatchedButton mReportProblemSubMenu;
    WatchedButton mAboutSubMenu;
};

}
