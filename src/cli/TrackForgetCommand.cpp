#include "base/Failure.h"
#include "base/SettingsFile.h"
#include "base/Text.h"
#include "base/TrackerFile.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/DurationArgument.h"
#include "cli/RunningTracker.h"
#include "host/files/PathOperations.h"
#include "host/store/LineMemory.h"
#include "session/OpenProfile.h"
#include "track/ProfileRecorder.h"
#include "track/TrackClock.h"
#include "track/TrackError.h"

#include <cstdint>
#include <string>

namespace tempodial {

namespace {

/// Lines behind the heading of a day's file up to the last one that imports have reached.
std::int64_t LinesTaken(const Profile& profile, const std::string& dayKey)
{
    std::int64_t taken = 0;
    try {
        LineMemory memory(profile.Mailbox());
        memory.BeginDay(dayKey, 0);
        const auto file = profile.Surroundings().fileSystem->OpenTextFile(
            DataPath(profile, TrackerFileName(dayKey)), OpenMode::Reading, false);
        file->ReadLine();
        for (std::int64_t number = 1;; ++number) {
            const auto line = file->ReadLine();
            taken = !IsBlank(line) && memory.IsKnown(line) ? number : taken;
        }
    } catch (const Failure&) {
        // That was the last one, or there is no such file.
    }
    return taken;
}

class TrackForgetCommand final : public Command
{
public:
    TrackForgetCommand()
        : Command({ "track forget", "Take out what was recorded last",
            "Takes the lines out of the tracker's files whose slots end within that time, and\n"
            "what waits to be written. What \"sync\" has imported already stays and is named;\n"
            "\"tempodial delete\" removes activities.\n"
            "\n"
            "  tempodial track forget --last 30m" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("--last TIME", mLast, "How long back, such as 30m or 2h");
    }

    Reply Run(const Options& options) override
    {
        constexpr std::int64_t Milliseconds = 1000;
        const auto length = ToSeconds("--last", mLast) * Milliseconds;
        const RunningTracker tracker(options);
        if (!StatusAt(NativePath::Exactly(tracker.Profile() + "/" + TrackerFolderName), Links::Followed)) {
            ControlMessage nothing;
            nothing.Set("forgotten", "0");
            nothing.Set("kept", "0");
            return Answer(nothing);
        }
        const auto now = TrackClock(options.now).Now();
        auto request = TrackRequest("forget");
        request.Set("last", std::to_string(length));
        // The recorder may see a midnight that comes just now.
        const auto profile = ReadProfile(options);
        const auto today = Day(tracker, now);
        const auto first = Date::FromSeconds(today.Seconds() - length / Milliseconds).Day();
        for (auto day = first; day <= today.AddDays(1); day = day.AddDays(1)) {
            const auto key = day.DayKey();
            if (StatusAt(NativePath::Exactly(DataPath(profile, TrackerFileName(key))), Links::Followed)) {
                request.Set(TakenLines(key), std::to_string(LinesTaken(profile, key)));
            }
        }
        auto answer = tracker.AskIfRunning(request);
        if (!answer) {
            answer = tracker.IsRunning() ? tracker.Ask(request) : ForgetByItself(tracker.Profile(), request, now);
        }
        return Answer(*answer);
    }

private:
    /// Today, by the clock of the recorder when one runs.
    static Date Day(const RunningTracker& tracker, const TrackMoment& now)
    {
        const auto answer = tracker.AskIfRunning(TrackRequest("status"));
        return answer ? DayOfMoment(answer->Get("now")) : now.ToDate();
    }

    static Date DayOfMoment(const std::string& moment)
    {
        constexpr std::size_t YearDigits = 4;
        constexpr std::size_t MonthAt = 5;
        constexpr std::size_t DayAt = 8;
        return Date::FromTexts(
            moment.substr(0, YearDigits), std::stoi(moment.substr(MonthAt, 2)), moment.substr(DayAt, 2));
    }

    static ControlMessage ForgetByItself(
        const std::string& profile, const ControlMessage& request, const TrackMoment& now)
    {
        try {
            ProfileRecorder recorder(profile, now, [](const std::string&) {});
            auto answer = recorder.Answer(request, now);
            if (answer.Has("error")) {
                throw CommandError(answer.Get("error"));
            }
            return answer;
        } catch (const TrackError& error) {
            throw CommandError(error.what());
        } catch (const SettingsFileError& error) {
            throw CommandError(error.what());
        }
    }

    static Reply Answer(const ControlMessage& answer)
    {
        const auto forgotten = std::stoi(answer.Get("forgotten"));
        const auto kept = std::stoi(answer.Get("kept"));
        Reply reply;
        reply.document = { { "forgotten", forgotten }, { "kept", kept } };
        reply.text = std::to_string(forgotten) + (forgotten == 1 ? " line was" : " lines were") + " taken out.\n";
        if (kept > 0) {
            reply.remarks.push_back(std::to_string(kept) + (kept == 1 ? " line is" : " lines are")
                + " imported already and stay: remove the activities with \"tempodial delete\"");
        }
        return reply;
    }

    std::string mLast;
};

}

std::unique_ptr<Command> MakeTrackForgetCommand()
{
    return std::make_unique<TrackForgetCommand>();
}

}
