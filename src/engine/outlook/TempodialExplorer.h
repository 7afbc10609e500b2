#pragma once

#include "base/Date.h"
#include "base/Watched.h"
#include "engine/foundation/TracedObject.h"
#include "platform/objectmodel/Explorer.h"

#include <cstdint>
#include <memory>

namespace tempodial {

class TempodialMain;
class TempodialToolbars;

/// The companion of one explorer: it gets the window's toolbars built, notices the way to the work log, and keeps the
/// views of the work log and the default calendar apart. None of its routines but `Initialize` passes a failure on,
/// and that one only without a log.
class TempodialExplorer final : public TracedObject, public std::enable_shared_from_this<TempodialExplorer>
{
public:
    explicit TempodialExplorer(Ref<const Platform> platform);

    /// The window, nothing once this is terminated.
    Watched<Explorer> mExplorer;

    void Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main, const Ref<Explorer>& explorer,
        std::int32_t id);
    /// Ends the toolbars and lets all references go; a second call is harmless.
    void Terminate();
    /// Keeps the log's calendar view off the default calendar and the user's view off the log. A failure inside
    /// silences it for this window.
    void HandleSideBySide();

private:
    void CreateToolbars();
    /// Works on both folders, shown side by side.
    void HandleBothSelected();
    /// Gives the window the user's own calendar view, or the name handed in when there is none.
    void SetDefaultView(std::string viewName);
    /// True when the log's name occurs in the name of the window's view.
    bool IsViewOurs();
    void mExplorer_Activate();
    void mExplorer_FolderSwitch();
    void mExplorer_SelectionChange();
    void mExplorer_Close();

    Ref<TempodialMain> mMain;
    Ref<TempodialToolbars> mToolbars;
    /// True once the window has its controls; never goes back.
    bool mToolbarsDone = false;
    std::int32_t mID = 0;
    Ref<MAPIFolder> mWorkLogFolder;
    bool mSideBySideBusy = false;
    Date mLastForcedSwitch;
};

}
