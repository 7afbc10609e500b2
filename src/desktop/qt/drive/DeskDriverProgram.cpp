#include "desktop/qt/drive/DeskDriverProgram.h"

#include "desktop/qt/drive/DeskDriver.h"
#include "driver/AnswerLines.h"
#include "session/InstalledForm.h"
#include "terminal/ArgumentParser.h"
#include "terminal/ProfileArguments.h"
#include "terminal/ProgramRun.h"

#include <QApplication>
#include <iostream>

namespace tempodial {

namespace {

constexpr auto Description = "The desktop program, worked by another program on a screen that nobody sees: reads\n"
                             "one JSON object a line as tempodial-drive does, does it with pointer and keys, and\n"
                             "answers what is shown otherwise than it is as \"differences\".\n";
constexpr auto Footer = "Exit status: 0 done; 1 not done; 2 unusable arguments; 3 the profile is in use by\n"
                        "another process.";

/// Passes on what the toolkit says, but for what it lacks on a screen that nobody sees.
void Say(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith("This plugin does not support") && !message.startsWith("QStandardPaths")) {
        std::cerr << message.toStdString() << std::endl;
    }
}

}

ExitStatus DeskDriverProgram::Run(const std::vector<std::string>& arguments) noexcept
{
    return RunProgram(Name, mError, [&] { return Execute(arguments); });
}

ExitStatus DeskDriverProgram::Execute(const std::vector<std::string>& arguments)
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Say);
    std::string name = Name;
    int count = 1;
    char* values[] { name.data(), nullptr };
    QApplication application(count, values);
    QApplication::setQuitOnLastWindowClosed(false);
    // A profile of a test has settings of its own.
    const auto settings
        = options.profile ? *options.profile + "/" + DesktopSettings::FileName : Desk::UsualSettingsPath();
    DeskDriver desk(RequireForm(options), settings);
    return AnswerLines(desk.Driver(), mInput, mOut, mError, Name);
}

}
