#include "desktop/qt/DesktopProgram.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/PeriodicImport.h"
#include "desktop/qt/QtMessageBox.h"
#include "desktop/qt/SystemTheme.h"
#include "session/InstalledForm.h"
#include "terminal/ArgumentParser.h"
#include "terminal/ProfileArguments.h"
#include "terminal/ProgramRun.h"

#include <QApplication>
#include <string>

namespace tempodial {

namespace {

constexpr auto Description = "The work log in windows: what was done when, for which project, and what is to be\n"
                             "sorted out.\n";
constexpr auto Footer = "Exit status: 0 done; 1 not done; 2 unusable arguments; 3 the profile is in use by\n"
                        "another process.";

}

ExitStatus DesktopProgram::Run(const std::vector<std::string>& arguments) noexcept
{
    return RunProgram(Name, mError, [&] { return Execute(arguments); });
}

ExitStatus DesktopProgram::Execute(const std::vector<std::string>& arguments)
{
    const ArgumentParser parser({ Name, Description, Footer });
    ProfileArguments profile;
    auto list = parser.Arguments();
    profile.Declare(list);
    if (!parser.Parse(arguments, mOut)) {
        return ExitStatus::Done;
    }
    auto options = profile.Options();
    options.warn = [this](const std::string& message) { Complain(mError, Name, message); };
    std::string name = Name;
    int count = 1;
    char* values[] { name.data(), nullptr };
    QApplication application(count, values);
    QApplication::setApplicationDisplayName(ProductName);
    QApplication::setDesktopFileName("io.github.tempodial.Tempodial");
    QApplication::setQuitOnLastWindowClosed(false);
    Appearance appearance;
    Desk desk(RequireForm(options), Desk::UsualSettingsPath(), appearance);
    desk.Start(MakeRef<QtMessageBox>(desk.Session().Mailbox()));
    {
        HostWindows windows(desk);
        const PeriodicImport import(desk);
        const SystemTheme theme([&desk](bool isDark) { desk.FollowSystem(isDark); });
        windows.mWhenAllClosed = [] { QCoreApplication::quit(); };
        QApplication::exec();
        desk.Exit();
    }
    return ExitStatus::Done;
}

}
