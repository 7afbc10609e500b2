#pragma once

#include "base/Ref.h"
#include "desktop/DesktopSettings.h"
#include "host/windows/HostExplorer.h"
#include "platform/objectmodel/Views.h"
#include "session/Profile.h"

#include <utility>

namespace tempodial {

/// The view that an explorer has of the work log, a table or a calendar, beside those of the window that shows it.
class ModelView
{
public:
    using LogView = DesktopSettings::View;

    /// The profile must live as long as this.
    ModelView(const Profile& profile, Ref<HostExplorer> explorer)
        : mProfile(profile)
        , mExplorer(std::move(explorer))
    {
    }

    /// What a window shows behind the explorer's choice of a view: the list for a table, for a calendar the days that
    /// it shows, or else the week; what it shows now while the explorer is elsewhere.
    LogView Wanted(LogView shown) const;
    /// A person has chosen what the window shows: the explorer takes the product's view that goes with it.
    void Choose(LogView chosen) const;
    /// The same for a window that begins with it. Only what isn't usual is said, since the product chooses the rest.
    void Begin(LogView first) const;

private:
    /// The views of the folder; nothing when it isn't the work log.
    Ref<Views> OfLog() const;
    bool IsTable(const Ref<Views>& views) const;
    void Apply(const Ref<Views>& views, ViewType type) const;

    const Profile& mProfile;
    Ref<HostExplorer> mExplorer;
};

}
