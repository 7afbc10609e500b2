#include "desktop/qt/DesktopProgram.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/ExampleProgram.h"
#include "desktop/qt/GuardedApplication.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/InstanceSocket.h"
#include "desktop/qt/PeriodicImport.h"
#include "desktop/qt/ProgramIcon.h"
#include "desktop/qt/QtMessageBox.h"
#include "desktop/qt/SystemTheme.h"
#include "desktop/qt/TrackerSilence.h"
#include "desktop/qt/TrayIcon.h"
#include "session/InstalledForm.h"
#include "session/OpenProfile.h"
#include "session/ProfileError.h"

#include <QMessageBox>
#include <chrono>
#include <exception>
#include <optional>
#include <string>

namespace tempodial {

namespace {

/// How long another program may still work on the profile, such as a command that ends soon.
constexpr std::chrono::seconds LongestWait(5);

constexpr auto Description = "The work log in windows: what was done when, for which project, and what is to be\n"
                             "sorted out.\n";

/// Shows on the screen why the program can't run, since who started it there sees no terminal.
void ShowRefusal(const std::exception& failure)
{
    if (QGuiApplication::platformName() != "offscreen") {
        QMessageBox::critical(nullptr, ProductName, failure.what());
    }
}

}

DesktopProgram::DesktopProgram(std::ostream& out, std::ostream& error)
    : ProfileProgram({ Name, Description, "" }, out, error)
{
}

ExitStatus DesktopProgram::Work(const ProfileOptions& given)
{
    auto options = given;
    options.wait = LongestWait;
    const auto path = ProfilePath(options);
    if (InstanceSocket::RaiseOther(path)) {
        return ExitStatus::Done;
    }
    std::string name = Name;
    int count = 1;
    char* values[] { name.data(), nullptr };
    GuardedApplication application(count, values);
    QApplication::setApplicationDisplayName(ProductName);
    QApplication::setDesktopFileName("io.github.tempodial.Tempodial");
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        if (RunWindows(options, application)) {
            ExampleProgram::Remove(path);
        }
    } catch (const ProfileInUse& failure) {
        // Another start may have been quicker by a moment.
        if (!InstanceSocket::RaiseOther(path)) {
            ShowRefusal(failure);
            throw;
        }
    } catch (const std::exception& failure) {
        ShowRefusal(failure);
        throw;
    }
    return ExitStatus::Done;
}

bool DesktopProgram::RunWindows(const ProfileOptions& options, GuardedApplication& application)
{
    Appearance appearance;
    Desk desk(RequireForm(options), Desk::UsualSettingsPath(), appearance);
    std::optional<InstanceSocket> socket;
    try {
        socket.emplace(desk.Profile().Path());
    } catch (const Failure& failure) {
        Complain(failure.Description() + ": a second start won't find this one");
    }
    application.mFailed = [&desk](const std::string& message) { desk.Fail(message); };
    desk.Start(MakeRef<QtMessageBox>(desk.Session().Mailbox(), [&desk] { desk.Show(); }));
    const bool isHidden = desk.Settings().hasTray && desk.Settings().startsHidden;
    HostWindows windows(desk, isHidden ? HostWindows::Beginning::Hidden : HostWindows::Beginning::Shown);
    const PeriodicImport import(desk);
    const SystemTheme theme([&desk](bool isDark) { desk.FollowSystem(isDark); });
    windows.mWhenAllClosed = [] { QCoreApplication::quit(); };
    TrayIcon tray(desk, [&windows] { windows.Raise(); });
    const TrackerSilence silence(desk, [&tray](const std::string& text) { tray.Say(text); });
    if (socket) {
        socket->mRaise = [&windows] { windows.Raise(); };
    }
    QApplication::exec();
    application.mFailed = nullptr;
    desk.Exit();
    return windows.RemovesExample();
}

}
