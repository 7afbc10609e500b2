/// The module of a desktop that a test directs: it reads lines of a pipe whose path stands in FAKE_DESKTOP, such as
/// "window editor 0 Title of it", "none", "idle 5000", "lock 1", "sees window title", "sleep 1" and "gone". Each time
/// that it is asked for the last input it adds a letter to the file of that path and ".asked".

#include "track/DesktopSource.h"
#include "track/SessionSource.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <type_traits>
#include <unistd.h>

namespace tempodial {

namespace {

class FakeScript
{
public:
    explicit FakeScript(const char* path)
        : mNumber(::open(path, O_RDWR | O_NONBLOCK | O_CLOEXEC))
    {
    }
    ~FakeScript() { ::close(mNumber); }
    FakeScript(const FakeScript&) = delete;
    FakeScript& operator=(const FakeScript&) = delete;

    int Number() const { return mNumber; }

    void Read()
    {
        std::array<char, 4096> buffer {};
        for (;;) {
            const auto count = ::read(mNumber, buffer.data(), buffer.size());
            if (count <= 0) {
                return;
            }
            mText.append(buffer.data(), static_cast<std::size_t>(count));
            for (auto end = mText.find('\n'); end != std::string::npos; end = mText.find('\n')) {
                Take(mText.substr(0, end));
                mText.erase(0, end + 1);
            }
        }
    }

    std::optional<FrontWindow> window;
    std::optional<std::chrono::milliseconds> idle;
    bool isLocked = false;
    DesktopSight sight { true, true, true, true, "" };
    bool isAsleep = false;
    bool isGone = false;

private:
    void Take(const std::string& line)
    {
        std::istringstream words(line);
        std::string what;
        words >> what;
        if (what == "window") {
            FrontWindow front;
            words >> front.program >> front.process >> std::ws;
            front.program = front.program == "-" ? "" : front.program;
            std::getline(words, front.title);
            window = front;
        } else if (what == "none") {
            window.reset();
        } else if (what == "idle") {
            std::int64_t milliseconds = 0;
            words >> milliseconds;
            idle = std::chrono::milliseconds(milliseconds);
        } else if (what == "lock") {
            words >> isLocked;
        } else if (what == "sees") {
            sight = {};
            while (words >> what) {
                sight.window = sight.window || what == "window";
                sight.title = sight.title || what == "title";
                sight.idle = sight.idle || what == "idle";
                sight.lock = sight.lock || what == "lock";
            }
        } else if (what == "sleep") {
            words >> isAsleep;
        } else if (what == "gone") {
            isGone = true;
        }
    }

    int mNumber;
    std::string mText;
};

/// Adds a letter to a file beside the pipe that a variable names.
void AddLetter(const char* variable, const char* suffix)
{
    const auto path = std::string(std::getenv(variable)) + suffix;
    const auto file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (::write(file, "x", 1) != 1) {
        std::abort();
    }
    ::close(file);
}

class FakeDesktop final : public DesktopSource
{
public:
    explicit FakeDesktop(const char* path)
        : mScript(path)
    {
        mScript.Read();
    }

    int Descriptor() const override { return mScript.Number(); }
    bool Dispatch() override
    {
        mScript.Read();
        return !mScript.isGone;
    }
    DesktopSight Sight() const override { return mScript.sight; }
    std::optional<FrontWindow> Window() override { return mScript.window; }
    std::optional<std::chrono::milliseconds> Idle() override
    {
        AddLetter("FAKE_DESKTOP", ".asked");
        return mScript.idle;
    }
    std::optional<bool> IsLocked() override { return mScript.isLocked; }

private:
    FakeScript mScript;
};

class FakeSession final : public SessionSource
{
public:
    explicit FakeSession(const char* path)
        : mScript(path)
    {
        mScript.Read();
    }

    int Descriptor() const override { return mScript.Number(); }
    bool Dispatch() override
    {
        mScript.Read();
        return true;
    }
    std::optional<bool> IsLocked() override
    {
        return mScript.sight.lock ? std::optional(mScript.isLocked) : std::nullopt;
    }
    std::optional<std::chrono::milliseconds> Idle() override { return mScript.idle; }
    bool IsGoingToSleep() override { return mScript.isAsleep; }
    void LetSleep() override
    {
        // The test sees that the machine may sleep by a file.
        AddLetter("FAKE_SESSION", ".slept");
    }

private:
    FakeScript mScript;
};

}

}

extern "C" __attribute__((visibility("default"))) std::unique_ptr<tempodial::DesktopSource> TempodialOpenDesktop(
    const tempodial::WatchSettings& /*settings*/, tempodial::DesktopSight& sight)
{
    const auto* path = std::getenv("FAKE_DESKTOP");
    if (path == nullptr) {
        sight.why = "no test directs this desktop: set FAKE_DESKTOP";
        return nullptr;
    }
    return std::make_unique<tempodial::FakeDesktop>(path);
}

extern "C" __attribute__((visibility("default"))) std::unique_ptr<tempodial::SessionSource> TempodialOpenSession(
    const tempodial::WatchSettings& /*settings*/, std::string& why)
{
    const auto* path = std::getenv("FAKE_SESSION");
    if (path == nullptr) {
        why = "no test directs this session: set FAKE_SESSION";
        return nullptr;
    }
    return std::make_unique<tempodial::FakeSession>(path);
}

static_assert(std::is_same_v<decltype(&TempodialOpenDesktop), tempodial::DesktopOpener>);
static_assert(std::is_same_v<decltype(&TempodialOpenSession), tempodial::SessionOpener>);
