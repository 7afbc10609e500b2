#include "track/wayland/Compositor.h"

#include "support/Unprivileged.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace tempodial {

Compositor::Compositor(Kind kind)
{
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    const auto config = mFolder.Write("config", "default_border none\n");
    if (::getuid() == 0 && ::chown(mFolder.Path().c_str(), UnprivilegedUser, UnprivilegedUser) != 0) {
        throw std::runtime_error("the folder of the compositor can't be given away");
    }
    std::filesystem::permissions(mFolder.Path(), std::filesystem::perms::owner_all);
    const auto command = kind == Kind::Sway
        ? std::vector<std::string> { "sway", "-c", config }
        : std::vector<std::string> { "weston", "--backend=headless-backend.so", "--socket=wayland-7", "--idle-time=0" };
    mCompositor = std::make_unique<StartedProcess>(Unprivileged(command), Surroundings());
    mDisplay = FirstFile("wayland-");
    ::setenv("WAYLAND_DISPLAY", mFolder.Path(mDisplay).c_str(), 1);
}

Compositor::~Compositor()
{
    ::unsetenv("WAYLAND_DISPLAY");
}

std::vector<std::string> Compositor::Surroundings() const
{
    return { "HOME=" + mFolder.Path(), "XDG_RUNTIME_DIR=" + mFolder.Path(), "WLR_BACKENDS=headless",
        "WLR_LIBINPUT_NO_DEVICES=1", "WLR_RENDERER=pixman" };
}

std::string Compositor::FirstFile(const std::string& beginning) const
{
    for (int i = 0; i < 1000; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(mFolder.Path())) {
            const auto name = entry.path().filename().string();
            if (name.starts_with(beginning) && !name.ends_with(".lock")) {
                return name;
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw std::runtime_error("the compositor doesn't start: install the packages that ./check --desktops does");
}

std::unique_ptr<StartedProcess> Compositor::Show(const std::string& appId, const std::string& title) const
{
    return std::make_unique<StartedProcess>(Unprivileged({ "foot", "--app-id=" + appId, "--title=" + title, "sh", "-c",
                                                "while sleep 0.05; do test -e \"$HOME/title-$0\" && printf "
                                                "'\\033]2;%s\\007' \"$(cat \"$HOME/title-$0\")\"; done",
                                                appId }),
        Surroundings());
}

void Compositor::Retitle(const std::string& appId, const std::string& title) const
{
    mFolder.Write("title-" + appId, title);
}

void Compositor::Await(const std::string& appId) const
{
    // Sway refuses what is said of windows that aren't there.
    for (int i = 0; i < 500 && Command("[app_id=" + appId + "] focus") != 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

int Compositor::Command(const std::string& command) const
{
    auto surroundings = Surroundings();
    surroundings.push_back("SWAYSOCK=" + mFolder.Path(FirstFile("sway-ipc")));
    return StartedProcess(Unprivileged({ "swaymsg", command }), surroundings).Wait();
}

void Compositor::Press(const std::string& key) const
{
    auto surroundings = Surroundings();
    surroundings.push_back("WAYLAND_DISPLAY=" + mDisplay);
    StartedProcess(Unprivileged({ "wtype", "-k", key }), surroundings).Wait();
}

}
