#pragma once

#include "DesktopFixture.h"
#include "desktop/Autostart.h"
#include "desktop/qt/SettingsDialog.h"

#include <functional>
#include <vector>

namespace tempodial {

/// The twelve screens of the program, each over a profile that has something to show.
class ScreensFixture : public DesktopFixture
{
protected:
    /// A screen: what it is called, and what opens it and answers its window.
    struct Screen
    {
        std::string name;
        std::function<QWidget&(ScreensFixture&)> open;
    };

    static const std::vector<Screen>& Screens();
    /// The name of a screen as tests may be called.
    static std::string TestName(const Screen& screen);

    static constexpr QSize WindowSize { 1120, 700 };

private:
    MainWindow& OpenWeek();
    std::int64_t NumberOf(MainWindow& window, const std::string& description);
    QWidget& Welcome();
    QWidget& FirstWeek();
    QWidget& Day();
    QWidget& List();
    QWidget& SortOut();
    QWidget& Selection();
    QWidget& Why();
    QWidget& ProjectSettings();
    QWidget& ActivityWindow();
    QWidget& Report();
    QWidget& Settings();

    std::unique_ptr<Autostart> mAutostart;
    std::unique_ptr<SettingsDialog> mDialog;
};

}
