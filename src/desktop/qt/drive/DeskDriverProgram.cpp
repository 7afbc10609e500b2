#include "desktop/qt/drive/DeskDriverProgram.h"

#include "desktop/qt/drive/DeskDriver.h"
#include "driver/AnswerLines.h"
#include "session/InstalledForm.h"

#include <iostream>

namespace tempodial {

namespace {

constexpr auto Description = "The desktop program, worked by another program on a screen that nobody sees: reads\n"
                             "one JSON object a line as tempodial-drive does, does it with pointer and keys, and\n"
                             "answers what is shown otherwise than it is as \"differences\".\n";

/// Passes on what the toolkit says, but for what it lacks on a screen that nobody sees.
void Say(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith("This plugin does not support") && !message.startsWith("QStandardPaths")) {
        std::cerr << message.toStdString() << std::endl;
    }
}

}

DeskDriverProgram::DeskDriverProgram(int input, std::ostream& out, std::ostream& error)
    : ProfileProgram({ Name, Description, "" }, out, error)
    , mInput(input)
{
}

ExitStatus DeskDriverProgram::Work(const ProfileOptions& options)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Say);
    std::string name = Name;
    int count = 1;
    char* values[] { name.data(), nullptr };
    GuardedApplication application(count, values);
    QApplication::setQuitOnLastWindowClosed(false);
    // A profile of a test has settings of its own.
    const auto settings
        = options.profile ? *options.profile + "/" + DesktopSettings::FileName : Desk::UsualSettingsPath();
    DeskDriver desk(application, RequireForm(options), settings);
    return AnswerLines(desk.Driver(), mInput, Out(), Complaints(), Name);
}

}
