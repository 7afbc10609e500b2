#include "desktop/qt/DesktopProgram.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/ExampleProgram.h"
#include "desktop/qt/GuardedApplication.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/InstanceSocket.h"
#include "desktop/qt/PeriodicImport.h"
#include "desktop/qt/ProgramIcon.h"
#include "desktop/qt/QtMessageBox.h"
#include "desktop/qt/RefusalBox.h"
#include "desktop/qt/SystemTheme.h"
#include "desktop/qt/TrackerSilence.h"
#include "desktop/qt/TrayIcon.h"
#include "session/InstalledForm.h"
#include "session/OpenProfile.h"
#include "session/ProfileError.h"

#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

namespace tempodial {

namespace {

/// How long another program may still work on the profile, such as a command that ends soon.
constexpr std::chrono::seconds LongestWait(5);

constexpr auto Description = "The work log in windows: what was done when, for which project, and what is to be\n"
                             "sorted out.\n";

/// Does what who started the program wants, as soon as nothing else is being done.
void Fulfil(Desk& desk, StartWish wish)
{
    constexpr std::chrono::milliseconds UntilTriedAgain(500);
    if (desk.IsBusy()) {
        QTimer::singleShot(UntilTriedAgain, qApp, [&desk, wish] { Fulfil(desk, wish); });
    } else if (wish == StartWish::Refresh) {
        desk.Do([&desk] { desk.Session().AddIn().SyncData(SavedDataDays, true); });
    } else if (wish == StartWish::Report) {
        desk.Do([&desk] { desk.Session().AddIn().ShowReportForm(); });
    }
}

/// Tells why the toolkit can't go on, as when there is no screen, and ends as a program that hasn't done its work.
void EndOnFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    std::cerr << message.toStdString() << std::endl;
    if (type == QtFatalMsg) {
        std::cerr << DesktopProgram::Name
                  << ": no window can be opened: start it within a desktop session, or use \"tempodial\" in a terminal"
                  << std::endl;
        std::_Exit(static_cast<int>(ExitStatus::NotDone));
    }
}

/// The folder of the profile that is meant; empty when there is none, of which is told where there is a screen.
std::string PathOf(const ProfileOptions& options)
{
    try {
        return ProfilePath(options);
    } catch (const std::exception&) {
        return {};
    }
}

/// Shows on the screen why the program can't run, since who started it there sees no terminal; true when a person has
/// seen to it and wants it tried again.
bool IsTriedAgain(const std::exception& failure, const ProfileOptions& options)
{
    const bool isSeen = QGuiApplication::platformName() != "offscreen";
    return isSeen && RefusalBox(StartRefusal(failure, options)).IsTriedAgain();
}

}

DesktopProgram::DesktopProgram(std::ostream& out, std::ostream& error)
    : ProfileProgram({ Name, Description, "" }, out, error)
{
}

void DesktopProgram::Declare(ArgumentList& arguments)
{
    arguments.Flag("--refresh", mRefreshes, "Import what the tracker has written, also where it runs already");
    arguments.Flag("--report", mReports, "Show the form for a report, also where it runs already");
}

StartWish DesktopProgram::Wish() const
{
    if (mReports) {
        return StartWish::Report;
    }
    return mRefreshes ? StartWish::Refresh : StartWish::None;
}

ExitStatus DesktopProgram::Work(const ProfileOptions& given)
{
    auto options = given;
    options.wait = LongestWait;
    const auto path = PathOf(options);
    if (InstanceSocket::RaiseOther(path, Wish())) {
        return ExitStatus::Done;
    }
    qInstallMessageHandler(EndOnFatal);
    std::string name = Name;
    int count = 1;
    char* values[] { name.data(), nullptr };
    GuardedApplication application(count, values);
    QApplication::setApplicationDisplayName(ProductName);
    QApplication::setDesktopFileName("io.github.tempodial.Tempodial");
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    while (true) {
        try {
            if (RunWindows(options, application)) {
                ExampleProgram::Remove(path);
            }
            return ExitStatus::Done;
        } catch (const ProfileInUse& failure) {
            // Another start may have been quicker by a moment.
            if (InstanceSocket::RaiseOther(path, Wish())) {
                return ExitStatus::Done;
            }
            if (!IsTriedAgain(failure, options)) {
                throw;
            }
        } catch (const std::exception& failure) {
            if (!IsTriedAgain(failure, options)) {
                throw;
            }
        }
    }
}

bool DesktopProgram::RunWindows(const ProfileOptions& options, GuardedApplication& application)
{
    Appearance appearance;
    Desk desk(RequireForm(options), Desk::UsualSettingsPath(), appearance);
    try {
        return ShowWindows(desk, application);
    } catch (...) {
        application.mFailed = nullptr;
        desk.EndQuietly();
        throw;
    }
}

bool DesktopProgram::ShowWindows(Desk& desk, GuardedApplication& application)
{
    std::optional<InstanceSocket> socket;
    try {
        socket.emplace(desk.Profile().Path());
    } catch (const Failure& failure) {
        Complain(failure.Description() + ": a second start won't find this one");
    }
    application.mFailed = [&desk](const std::exception& failure) { desk.Fail(failure); };
    desk.Start(MakeRef<QtMessageBox>(desk.Session().Mailbox(), [&desk] { desk.Show(); }));
    const bool isHidden = desk.Settings().hasTray && desk.Settings().startsHidden;
    HostWindows windows(desk, isHidden ? HostWindows::Beginning::Hidden : HostWindows::Beginning::Shown);
    const PeriodicImport import(desk);
    const SystemTheme theme({ .dark = [&desk](bool isDark) { desk.FollowSystem(isDark); },
        .contrast = [&desk](bool isHigh) { desk.FollowSystemContrast(isHigh); } });
    windows.mWhenAllClosed = [] { QCoreApplication::quit(); };
    TrayIcon tray(desk, [&windows] { windows.Raise(); });
    const TrackerSilence silence(desk, [&tray](const std::string& text) { tray.Say(text); });
    if (socket) {
        socket->mRaise = [&windows, &desk](StartWish wish) {
            windows.Raise();
            // Whoever calls waits for the answer.
            QTimer::singleShot(0, qApp, [&desk, wish] { Fulfil(desk, wish); });
        };
    }
    QTimer::singleShot(0, qApp, [this, &desk] { Fulfil(desk, Wish()); });
    QApplication::exec();
    application.mFailed = nullptr;
    desk.Exit();
    return windows.RemovesExample();
}

}
