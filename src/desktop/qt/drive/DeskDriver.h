#pragma once

#include "desktop/qt/Appearance.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/GuardedApplication.h"
#include "desktop/qt/HostWindows.h"
#include "driver/Driver.h"
#include "session/ProfileOptions.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// The desktop's windows worked by the driver's commands: what a person does is done with pointer and keys, and behind
/// each command what the windows show is held against the models.
class DeskDriver
{
public:
    /// Opens the profile, with the settings of that path; fails with `ProfileInUse` or `ProfileError`. What an event of
    /// the application fails with is told as a difference.
    DeskDriver(GuardedApplication& application, const ProfileOptions& options, const std::string& settingsPath);
    ~DeskDriver();
    DeskDriver(const DeskDriver&) = delete;
    DeskDriver& operator=(const DeskDriver&) = delete;

    tempodial::Driver& Driver() { return *mDriver; }
    /// The window of an explorer, null for none.
    MainWindow* WindowOf(const Ref<HostExplorer>& explorer) const;

private:
    /// Lets the windows follow the models, and answers what they show otherwise.
    std::vector<std::string> Follow();

    GuardedApplication& mApplication;
    Appearance mAppearance;
    Desk mDesk;
    /// What events have failed with since that was answered last.
    std::vector<std::string> mFailures;
    std::unique_ptr<HostWindows> mWindows;
    /// The host whose windows are shown; only compared.
    const HostApplication* mShown = nullptr;
    std::unique_ptr<tempodial::Driver> mDriver;
};

}
