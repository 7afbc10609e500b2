#pragma once

#include "base/Date.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/MainWindow.h"
#include "support/CannedMessageBox.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

class QWidget;

namespace tempodial {

/// The desktop program over a profile of its own, on Friday 17 November 2006 at 16:12, on a screen that nobody sees.
class DesktopFixture : public testing::Test
{
protected:
    DesktopFixture();
    ~DesktopFixture() override;

    /// A moment of that November.
    static Date On(int day, int hour, int minute = 0) { return Date::FromParts({ 2006, 11, day, hour, minute, 0 }); }
    /// Adds an activity to the log; an empty project is none.
    void Add(const std::string& project, const std::string& description, const std::string& application, Date start,
        Date end);
    /// Adds a week of work, as people have it.
    void AddWeek();
    /// Opens the windows, which show what was added.
    MainWindow& Open();
    /// Lets everything happen that is due.
    static void Settle();
    /// Keeps a picture of a widget in the folder that TEMPODIAL_PICTURES names, if it names one.
    static void Picture(QWidget& widget, const std::string& name);

    TempFolder mFolder { TempFolder::InMemory() };
    std::string mSettingsPath = mFolder.Path("config/desktop.toml");
    Appearance mLook;
    Ref<CannedMessageBox> mMessages = MakeRef<CannedMessageBox>();
    std::unique_ptr<Desk> mDesk;
    std::unique_ptr<HostWindows> mWindows;
};

}
