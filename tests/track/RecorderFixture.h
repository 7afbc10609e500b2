#pragma once

#include "support/TempFolder.h"
#include "track/DayWriter.h"
#include "track/Recorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// A recorder in front of which somebody works, by clocks that the test moves; it begins on Friday, 20 November 2026,
/// at ten, with a tick each 15 seconds.
class RecorderFixture : public testing::Test
{
protected:
    RecorderFixture();

    using Lines = std::vector<std::string>;

    /// The window in front from now on.
    void Front(const std::string& program, const std::string& title);
    void NoFront();
    /// Time with input at each tick.
    void Work(double minutes) { Go(minutes, true); }
    /// Time without any.
    void Rest(double minutes) { Go(minutes, false); }
    /// The machine sleeps, without a word.
    void Sleep(double minutes);
    /// The wall's clock is put by seconds.
    void PutClock(std::int64_t seconds);
    void Lock(bool isLocked);
    /// Time of day at which the test goes on, before it has begun.
    void StartAt(int hour, int minute);
    /// Another recorder goes on with what this one has kept, or would have if it had been killed now.
    void Restart();
    void Finish();

    /// The lines of a day's file, in short: "10:00-10:05 Editor, a.txt", with "+" for what goes on, "*" for a detail,
    /// and the project in brackets.
    Lines Written(int daysLater = 0);
    /// The same without details.
    Lines Slots(int daysLater = 0);
    std::string Content(int daysLater = 0);

    std::int64_t Midnight(int daysLater = 0) const;
    void Tick();

    TempFolder mFolder { TempFolder::InMemory() };
    TrackMoment mNow;
    Observation mSeen;
    std::int64_t mLastInput = 0;
    std::vector<std::string> mWarnings;
    std::optional<DayWriter> mWriter;
    std::optional<Recorder> mRecorder;

private:
    void Go(double minutes, bool hasInput);
    void Pass(std::int64_t milliseconds);
    void Make();
};

}
