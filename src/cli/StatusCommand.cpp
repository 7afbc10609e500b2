#include "base/IsoDate.h"
#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "host/files/FolderDescriptor.h"
#include "review/ActivityReader.h"
#include "review/TimeText.h"
#include "session/LastSync.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/SyncTimer.h"
#include "session/TrackerFiles.h"
#include "session/WorkLogFolder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

namespace {

/// Bytes of the files in a folder, 0 where there is none.
std::uint64_t BytesIn(const std::string& folder)
{
    std::uint64_t bytes = 0;
    try {
        for (const auto& file : FolderDescriptor(NativePath::Exactly(folder)).Files()) {
            bytes += file.status.size;
        }
    } catch (const Failure&) {
        // No folder, no files.
    }
    return bytes;
}

std::string SizeText(std::uint64_t bytes)
{
    constexpr std::uint64_t Kilo = 1024;
    return bytes < Kilo * Kilo ? std::to_string((bytes + Kilo - 1) / Kilo) + " KiB"
                               : std::to_string(bytes / Kilo / Kilo) + " MiB";
}

/// What there is to tell of a profile.
struct Status
{
    std::string profile;
    std::uint64_t bytes = 0;
    std::int32_t activities = 0;
    TrackerFiles tracker;
    std::optional<LastSync> lastSync;
    std::optional<SyncTimer> timer;
    std::int64_t minutes = 0;
    std::int64_t unassigned = 0;
    std::vector<std::string> needsHand;
};

class StatusCommand final : public Command
{
public:
    StatusCommand()
        : Command({ "status", "Show how it stands: tracker, last sync, today's time",
            "Shows the profile and its size, what the tracker wrote last, the files that\n"
            "wait for a sync and those that are too old for one, how the last sync ended,\n"
            "today's time and what of it has no project. When something needs a hand, it is\n"
            "named, and the exit status is 1. \"tempodial\" alone does the same.\n"
            "\n"
            "  tempodial status\n"
            "  tempodial status --json" })
    {
    }

    void Declare(ArgumentList&) override { }

    Reply Run(const Options& options) override
    {
        const auto profile = ReadProfile(options);
        const auto status = StatusOf(profile);
        Reply reply;
        if (options.json) {
            reply.document = Document(status);
        } else {
            reply.text = Text(status);
        }
        reply.status = status.needsHand.empty() ? ExitStatus::Done : ExitStatus::NotDone;
        return reply;
    }

private:
    static Status StatusOf(const Profile& profile)
    {
        Status status { .profile = profile.Path(),
            .bytes
            = BytesIn(profile.Path()) + BytesIn(profile.DataFolder()) + BytesIn(DataPath(profile, KeptFolderName)),
            .activities = CountActivities(profile),
            .tracker = TrackerFiles::Of(profile),
            .lastSync = LastSync::Of(profile),
            .timer = SyncTimer::Of(profile.Clock()->Now(), *profile.Surroundings().fileSystem) };
        const auto today = profile.Clock()->Now().Day();
        for (const auto& activity : ActivitiesStartingIn(profile, { today, today })) {
            status.minutes += activity.duration;
            status.unassigned += IsUnassigned(activity) ? activity.duration : 0;
        }
        status.needsHand = NeedsOf(profile, status);
        return status;
    }

    static std::vector<std::string> NeedsOf(const Profile& profile, const Status& status)
    {
        std::vector<std::string> needs;
        if (!profile.IsThere()) {
            needs.emplace_back("there is no profile yet: \"tempodial sync\" makes one");
        }
        if (const auto& last = status.lastSync) {
            // One that is under way hasn't ended in any way.
            const bool isUnderWay = last->outcome == "interrupted" && profile.IsHeld();
            if (last->outcome != "whole" && !isUnderWay) {
                needs.push_back((last->outcome == "partly"          ? "the last sync didn't do all"
                                        : last->outcome == "failed" ? "the last sync failed"
                                                                    : "the last sync was interrupted")
                    + std::string(": run \"tempodial sync\" and see to what it says"));
            }
            if (last->unread > 0) {
                needs.push_back("the last sync couldn't read " + std::to_string(last->unread)
                    + (last->unread == 1 ? " line" : " lines") + " of the tracker: \"tempodial doctor\" names them");
            }
        }
        if (const auto& files = status.tracker.tooOld; !files.empty()) {
            needs.push_back("too old for a sync: " + Joined(files, ", ") + ": \"tempodial sync --since DAY\" takes "
                + (files.size() == 1 ? "it" : "them"));
        }
        return needs;
    }

    static JsonValue Document(const Status& status)
    {
        JsonValue document { { "profile", status.profile }, { "bytes", status.bytes },
            { "activities", status.activities }, { "tracker", nullptr }, { "waiting", status.tracker.waiting },
            { "tooOld", status.tracker.tooOld }, { "lastSync", nullptr },
            { "today", JsonValue { { "minutes", status.minutes }, { "unassigned", status.unassigned } } },
            { "timer", nullptr }, { "needsHand", status.needsHand } };
        if (const auto& latest = status.tracker.latest) {
            document.Set("tracker", { { "file", latest->name }, { "lastWritten", IsoMoment(latest->when) } });
        }
        if (const auto& last = status.lastSync) {
            document.Set("lastSync",
                { { "when", IsoMoment(last->when) }, { "outcome", last->outcome }, { "created", last->created },
                    { "extended", last->extended }, { "detailed", last->detailed } });
        }
        if (const auto& timer = status.timer) {
            document.Set("timer",
                { { "unit", timer->unit },
                    { "next", timer->next ? JsonValue(IsoMoment(*timer->next)) : JsonValue() } });
        }
        return document;
    }

    static std::string Text(const Status& status)
    {
        using enum TextTable::Side;
        TextTable table({ Left, Left });
        table.Add({ "Profile", status.profile });
        table.Add({ "Holds",
            std::to_string(status.activities) + (status.activities == 1 ? " activity, " : " activities, ")
                + SizeText(status.bytes) });
        table.Add({ "Today", HourText(status.minutes) + ", without a project " + HourText(status.unassigned) });
        const auto& latest = status.tracker.latest;
        table.Add({ "Tracker",
            latest ? latest->name + ", written " + ReadableMoment(latest->when)
                   : R"(no file; "tempodial track install" lets your session record)" });
        table.Add({ "Waiting", status.tracker.waiting.empty() ? "nothing" : Joined(status.tracker.waiting, ", ") });
        table.Add({ "Last sync", status.lastSync ? SyncText(*status.lastSync) : "none" });
        table.Add({ "Timer", status.timer ? TimerText(*status.timer) : "none" });
        auto text = table.Text();
        for (const auto& need : status.needsHand) {
            text += "\nNeeds a hand: " + need + "\n";
        }
        return text;
    }

    static std::string SyncText(const LastSync& last)
    {
        return ReadableMoment(last.when) + ", " + last.outcome + ": " + std::to_string(last.created) + " created, "
            + std::to_string(last.extended) + " extended, " + std::to_string(last.detailed) + " detailed";
    }

    static std::string TimerText(const SyncTimer& timer)
    {
        return timer.unit + (timer.next ? ", next " + ReadableMoment(*timer.next) : "");
    }

    static std::string ReadableMoment(Date moment) { return IsoDay(moment) + " " + moment.HourMinute(); }

    static std::string Joined(const std::vector<std::string>& texts, const std::string& separator)
    {
        std::string joined;
        for (const auto& text : texts) {
            joined += (joined.empty() ? "" : separator) + text;
        }
        return joined;
    }
};

}

std::unique_ptr<Command> MakeStatusCommand()
{
    return std::make_unique<StatusCommand>();
}

}
