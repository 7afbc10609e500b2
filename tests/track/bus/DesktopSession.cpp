#include "track/bus/DesktopSession.h"

#include "support/Unprivileged.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <sys/prctl.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace {

constexpr auto Display = "wayland-9";
constexpr auto Extension = "tempodial-43@tempodial.example";

}

DesktopSession::DesktopSession(Kind kind)
    : mFolder((GiveUpRights(), std::filesystem::temp_directory_path()))
{
    ::unsetenv("DISPLAY");
    ::setenv("HOME", mFolder.Path().c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", mFolder.Path().c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", mFolder.Path("config").c_str(), 1);
    ::setenv("XDG_SESSION_TYPE", "wayland", 1);
    ::setenv("GSETTINGS_BACKEND", "keyfile", 1);
    ::setenv("WAYLAND_DISPLAY", Display, 1);
    // Tests may say what is typed.
    ::setenv("KWIN_WAYLAND_NO_PERMISSION_CHECKS", "1", 1);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", StartBus("session").c_str(), 1);
    if (kind == Kind::KWin) {
        StartKWin();
    } else if (kind != Kind::None) {
        StartGnome(kind == Kind::GnomeWithExtension);
    }
}

DesktopSession::~DesktopSession()
{
    ::unsetenv("WAYLAND_DISPLAY");
    ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
    ::unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    while (!mServices.empty()) {
        mServices.pop_back();
    }
}

void DesktopSession::GiveUpRights()
{
    if (::getuid() == 0
        && (::setresgid(UnprivilegedUser, UnprivilegedUser, UnprivilegedUser) != 0
            || ::setresuid(UnprivilegedUser, UnprivilegedUser, UnprivilegedUser) != 0)) {
        throw std::runtime_error("the administrator's rights can't be given up");
    }
    // What the test has open stays readable for its own user, as it is for one who never had more rights.
    ::prctl(PR_SET_DUMPABLE, 1);
}

std::string DesktopSession::StartBus(const std::string& kind)
{
    const auto config = mFolder.Write(kind + ".conf",
        "<busconfig><type>" + kind
            + "</type><listen>unix:tmpdir=/tmp</listen><auth>EXTERNAL</auth><policy context=\"default\">"
              "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/>"
              "<allow user=\"*\"/></policy></busconfig>");
    mServices.push_back(std::make_unique<StartedProcess>(
        std::vector<std::string> { "dbus-daemon", "--nofork", "--config-file=" + config, "--print-address=9" },
        std::vector<std::string> {}, 9));
    const auto address = mServices.back()->ReadLine();
    if (address.empty()) {
        throw std::runtime_error("no message bus: install the packages that ./check --desktops does");
    }
    return address;
}

void DesktopSession::StartKWin()
{
    // A copy has no rights of its own, which the system would take for a reason to hide the session from it.
    const auto program = mFolder.Path("kwin_wayland");
    std::filesystem::copy_file("/usr/bin/kwin_wayland", program);
    mCompositor = std::make_unique<StartedProcess>(std::vector<std::string> { program, "--virtual", "--no-lockscreen",
        "--no-global-shortcuts", "--socket", Display, "--width", "800", "--height", "600" });
    WaitForDisplay();
    Wait(300);
}

void DesktopSession::StartGnome(bool hasExtension)
{
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", StartBus("custom").c_str(), 1);
    mServices.push_back(std::make_unique<StartedProcess>(
        std::vector<std::string> { "python3", "-m", "dbusmock", "--system", "--template", "logind" }));
    if (hasExtension) {
        const auto folder = mFolder.Path(".local/share/gnome-shell/extensions/") + Extension;
        std::filesystem::create_directories(folder);
        for (const auto* const file : { "extension.js", "metadata.json" }) {
            std::filesystem::copy_file(
                std::string(TEMPODIAL_SHARE_DIR "/../gnome-shell/extensions/") + Extension + "/" + file,
                folder + "/" + file);
        }
        Run({ "gsettings", "set", "org.gnome.shell", "enabled-extensions", std::string("['") + Extension + "']" })
            ->Wait();
    }
    Run({ "gsettings", "set", "org.gnome.shell", "welcome-dialog-last-shown-version", "999" })->Wait();
    mCompositor = std::make_unique<StartedProcess>(std::vector<std::string> {
        "gnome-shell", "--headless", "--virtual-monitor", "800x600", "--wayland-display", Display });
    WaitForDisplay();
    // The overview, in front of everything when the session begins, gives no window the focus.
    for (int i = 0; i < 20; ++i) {
        Run({ "gdbus", "call", "--session", "-d", "org.gnome.Shell", "-o", "/org/gnome/Shell", "-m",
                "org.freedesktop.DBus.Properties.Set", "org.gnome.Shell", "OverviewActive", "<false>" })
            ->Wait();
        Wait(100);
    }
}

void DesktopSession::Wait(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::unique_ptr<StartedProcess> DesktopSession::Run(const std::vector<std::string>& command) const
{
    return std::make_unique<StartedProcess>(command);
}

void DesktopSession::WaitForDisplay() const
{
    for (int i = 0; i < 2000 && !mFolder.Has(Display); ++i) {
        Wait(10);
    }
    if (!mFolder.Has(Display)) {
        throw std::runtime_error("the desktop doesn't start: install the packages that ./check --desktops does");
    }
}

std::unique_ptr<StartedProcess> DesktopSession::Show(const std::string& title) const
{
    Retitle(title);
    const auto shell = mFolder.Write("shell",
        "#!/bin/sh\nwhile sleep 0.1; do printf '\\033]0;%s\\007' \"$(cat '" + mFolder.Path("title") + "')\"; done\n");
    std::filesystem::permissions(shell, std::filesystem::perms::owner_all);
    return std::make_unique<StartedProcess>(std::vector<std::string> { "weston-terminal", "--shell=" + shell });
}

void DesktopSession::Retitle(const std::string& title) const
{
    mFolder.Write("title", title);
}

}
