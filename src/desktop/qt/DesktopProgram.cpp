#include "desktop/qt/DesktopProgram.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/InstanceSocket.h"
#include "desktop/qt/PeriodicImport.h"
#include "desktop/qt/ProgramIcon.h"
#include "desktop/qt/QtMessageBox.h"
#include "desktop/qt/SystemTheme.h"
#include "desktop/qt/TrayIcon.h"
#include "session/InstalledForm.h"
#include "session/OpenProfile.h"
#include "session/ProfileError.h"

#include <QApplication>
#include <chrono>
#include <optional>
#include <string>

namespace tempodial {

namespace {

/// How long another program may still work on the profile, such as a command that ends soon.
constexpr std::chrono::seconds LongestWait(5);

constexpr auto Description = "The work log in windows: what was done when, for which project, and what is to be\n"
                             "sorted out.\n";

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
    const QApplication application(count, values);
    QApplication::setApplicationDisplayName(ProductName);
    QApplication::setDesktopFileName("io.github.tempodial.Tempodial");
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        RunWindows(options);
    } catch (const ProfileInUse&) {
        // Another start may have been quicker by a moment.
        if (!InstanceSocket::RaiseOther(path)) {
            throw;
        }
    }
    return ExitStatus::Done;
}

void DesktopProgram::RunWindows(const ProfileOptions& options)
{
    Appearance appearance;
    Desk desk(RequireForm(options), Desk::UsualSettingsPath(), appearance);
    std::optional<InstanceSocket> socket;
    try {
        socket.emplace(desk.Profile().Path());
    } catch (const Failure& failure) {
        Complain(failure.Description() + ": a second start won't find this one");
    }
    desk.Start(MakeRef<QtMessageBox>(desk.Session().Mailbox(), [&desk] { desk.Show(); }));
    const bool isHidden = desk.Settings().hasTray && desk.Settings().startsHidden;
    HostWindows windows(desk, isHidden ? HostWindows::Beginning::Hidden : HostWindows::Beginning::Shown);
    const PeriodicImport import(desk);
    const SystemTheme theme([&desk](bool isDark) { desk.FollowSystem(isDark); });
    windows.mWhenAllClosed = [] { QCoreApplication::quit(); };
    const TrayIcon tray(desk, [&windows] { windows.Raise(); });
    if (socket) {
        socket->mRaise = [&windows] { windows.Raise(); };
    }
    QApplication::exec();
    desk.Exit();
}

}
