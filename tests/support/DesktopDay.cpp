#include "support/DesktopDay.h"

#include "support/Program.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace tempodial {

namespace {

constexpr auto MorningOfDay = "2026-11-23T10:01:00";
constexpr auto EveningOfDay = "2026-11-23T18:00:00";
constexpr auto DayFile = "profile/Tempodial/tracker_granules20261123.out";

std::string Between(const std::string& line, const std::string& node)
{
    const auto begin = line.find("<" + node + ">");
    if (begin == std::string::npos) {
        return "";
    }
    const auto from = begin + node.size() + 2;
    return line.substr(from, line.find('<', from) - from);
}

/// What a program sees of its caller, and where its desktop is.
std::vector<std::string> DesktopEnvironment()
{
    auto environment = UsualEnvironment();
    for (const std::string name :
        { "DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS", "XDG_RUNTIME_DIR" }) {
        if (const char* value = std::getenv(name.c_str()); value != nullptr) {
            environment.push_back(name + "=" + value);
        }
    }
    return environment;
}

}

DesktopDay::DesktopDay(int speed)
    : mSpeed(speed)
    , mRecorder(std::make_unique<StartedProcess>(std::vector<std::string> { TEMPODIAL_EXECUTABLE, "--profile",
          mFolder.Path("profile"), "--now", MorningOfDay, "track", "--speed", std::to_string(speed) }))
{
    for (int i = 0; i < 200; ++i) {
        const auto status
            = RunTempodial({ "--profile", mFolder.Path("profile"), "--json", "track", "status" }, DesktopEnvironment());
        mStart = std::chrono::steady_clock::now();
        if (status.out.find("\"running\": true") != std::string::npos) {
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw std::runtime_error("the recorder doesn't start");
}

void DesktopDay::Until(double minutes, const std::function<void()>& press) const
{
    constexpr std::chrono::milliseconds BetweenKeys { 150 };
    const std::chrono::duration<double> after(minutes * 60 / mSpeed);
    const auto until = mStart + std::chrono::duration_cast<std::chrono::nanoseconds>(after);
    while (std::chrono::steady_clock::now() < until) {
        press();
        std::this_thread::sleep_until(std::min(until, std::chrono::steady_clock::now() + BetweenKeys));
    }
}

int DesktopDay::End()
{
    mRecorder->Send(SIGTERM);
    return mRecorder->Wait();
}

std::vector<std::string> DesktopDay::Lines() const
{
    std::istringstream content(mFolder.Read(DayFile));
    std::vector<std::string> lines;
    std::string line;
    std::getline(content, line);
    while (std::getline(content, line)) {
        if (line.find("<Detail>") == std::string::npos) {
            const auto goesOn = line.find("<Continuation>") != std::string::npos;
            lines.push_back(Between(line, "StartTime") + "-" + Between(line, "EndTime") + (goesOn ? " + " : " ")
                + Between(line, "AppName") + ", " + Between(line, "WindowText"));
        }
    }
    return lines;
}

std::vector<std::string> DesktopDay::Activities() const
{
    const std::vector<std::string> front { "--profile", mFolder.Path("profile"), "--locale", "en_US", "--now",
        EveningOfDay, "--json" };
    const auto run = [&front](const std::string& command) {
        auto arguments = front;
        arguments.push_back(command);
        return RunTempodial(arguments);
    };
    run("sync");
    std::vector<std::string> activities;
    for (const auto& item : nlohmann::json::parse(run("list").out)) {
        activities.push_back(item.at("subject").get<std::string>());
    }
    return activities;
}

std::vector<std::string> ThreeWindows(const std::string& first, const std::string& second, const std::string& third)
{
    return { "36000-36300 " + first, "36300-36600 + " + first, "36600-36900 + " + first, "36900-37200 " + second,
        "37200-37500 " + third, "37500-37800 + " + third };
}

std::pair<int, std::string> DesktopDay::Probe()
{
    const TempFolder folder;
    const auto result
        = RunTempodial({ "--profile", folder.Path("profile"), "--json", "track", "probe" }, DesktopEnvironment());
    for (const auto& desktop : nlohmann::json::parse(result.out)) {
        if (desktop.contains("chosen") && desktop.at("chosen").get<bool>()) {
            return { result.status, desktop.at("backend").get<std::string>() };
        }
    }
    return { result.status, "" };
}

}
