#include "track/RecorderFixture.h"

#include "base/Text.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::int64_t TickLength = 15000;
constexpr double MillisecondsOfMinute = 60000;

ViewMaker RecorderViews()
{
    Program editor { { "editor" }, "Editor", ProgramSort::Other };
    Program browser { { "browser" }, "Browser", ProgramSort::Other };
    Program call { { "call" }, "Call", ProgramSort::Meeting };
    Program reader { { "reader" }, "Reader", ProgramSort::Reader };
    Program lock { { "lock" }, "Lock", ProgramSort::Lock };
    PrivacyRule dropped { std::nullopt, TextPattern("*dropped*"), PrivacyRule::Action::Drop, "" };
    return { ProgramTable({ editor, browser, call, reader, lock }), PrivacyRules({ dropped }) };
}

std::string NodeIn(const std::string& line, const std::string& name)
{
    const auto begin = line.find("<" + name + ">");
    if (begin == std::string::npos) {
        return {};
    }
    const auto text = begin + name.size() + 2;
    return line.substr(text, line.find("</" + name + ">") - text);
}

std::string HourMinuteOf(const std::string& seconds)
{
    const auto time = std::stoll(seconds);
    return time == DaySeconds ? "24:00" : Date::FromSeconds(time).HourMinute();
}

std::string InShort(const std::string& line)
{
    const auto project = NodeIn(line, "Project");
    const auto text = NodeIn(line, "WindowText");
    return (NodeIn(line, "Continuation").empty() ? "" : "+") + std::string(NodeIn(line, "Detail").empty() ? "" : "*")
        + HourMinuteOf(NodeIn(line, "StartTime")) + "-" + HourMinuteOf(NodeIn(line, "EndTime")) + " "
        + (project.empty() ? "" : "[" + project + "] ") + NodeIn(line, "AppName") + (text.empty() ? "" : ", " + text);
}

}

RecorderFixture::RecorderFixture()
{
    mNow.boot = 500000;
    mNow.awake = 400000;
    mNow.offset = 60;
    StartAt(10, 0);
    Make();
}

void RecorderFixture::StartAt(int hour, int minute)
{
    const auto start = Date::FromYearMonthDay(2026, 11, 20).AddMinutes(hour * 60 + minute);
    mNow.local = start.Seconds() * MillisecondsOfSecond;
    mLastInput = mNow.boot;
}

void RecorderFixture::Front(const std::string& program, const std::string& title)
{
    mSeen.window = Sighting { program, "", title, "", false };
    Pass(1);
    mLastInput = mNow.boot;
    Tick();
}

void RecorderFixture::NoFront()
{
    mSeen.window.reset();
    Tick();
}

void RecorderFixture::Sleep(double minutes)
{
    const auto time = static_cast<std::int64_t>(minutes * MillisecondsOfMinute);
    mNow.local += time;
    mNow.boot += time;
    Tick();
}

void RecorderFixture::PutClock(std::int64_t seconds)
{
    mNow.local += seconds * MillisecondsOfSecond;
    Tick();
}

void RecorderFixture::Lock(bool isLocked)
{
    mSeen.isLocked = isLocked;
    mLastInput = mNow.boot;
    Tick();
}

void RecorderFixture::Restart()
{
    const auto state = TrackState::Of(mRecorder->State().Text());
    mWriter->Save(mNow.offset);
    Make();
    mRecorder->Restore(state, mNow);
}

void RecorderFixture::Finish()
{
    mRecorder->End(mNow);
    mWriter->Save(mNow.offset);
}

RecorderFixture::Lines RecorderFixture::Written(int daysLater)
{
    Lines lines;
    for (const auto& line : Split(Content(daysLater), "\r\n")) {
        if (line.starts_with("<slot>")) {
            lines.push_back(InShort(line));
        }
    }
    return lines;
}

RecorderFixture::Lines RecorderFixture::Slots(int daysLater)
{
    auto lines = Written(daysLater);
    std::erase_if(lines, [](const auto& line) { return line.starts_with("*"); });
    return lines;
}

std::string RecorderFixture::Content(int daysLater)
{
    mWriter->Save(mNow.offset);
    const auto path = mWriter->PathOf(Midnight(daysLater));
    return mFolder.Read(path.substr(path.rfind('/') + 1));
}

std::int64_t RecorderFixture::Midnight(int daysLater) const
{
    return Date::FromYearMonthDay(2026, 11, 20).AddDays(daysLater).Seconds();
}

void RecorderFixture::Tick()
{
    mSeen.idle = mNow.boot - mLastInput;
    mRecorder->Observe(mNow, mSeen);
}

void RecorderFixture::Go(double minutes, bool hasInput)
{
    for (auto left = static_cast<std::int64_t>(minutes * MillisecondsOfMinute); left > 0; left -= TickLength) {
        Pass(std::min(left, TickLength));
        if (hasInput) {
            mLastInput = mNow.boot;
        }
        Tick();
    }
}

void RecorderFixture::Pass(std::int64_t milliseconds)
{
    mNow.local += milliseconds;
    mNow.boot += milliseconds;
    mNow.awake += milliseconds;
}

void RecorderFixture::Make()
{
    mWriter.emplace(mFolder.Path());
    mRecorder.emplace(*mWriter, RecorderViews(), [this](const std::string& warning) { mWarnings.push_back(warning); });
}

}
