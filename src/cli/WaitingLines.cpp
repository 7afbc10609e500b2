#include "cli/WaitingLines.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "session/ProductFacts.h"
#include "session/TrackerDay.h"
#include "slots/SlotTimes.h"
#include "track/ProfileRecorder.h"

#include <optional>
#include <string>

namespace tempodial {

namespace {

/// The number that a node of a line holds; nothing when it has none.
std::optional<std::int32_t> NumberIn(const std::string& line, const std::string& node)
{
    const auto begin = line.find("<" + node + ">");
    const auto end = line.find("</" + node + ">");
    if (begin == std::string::npos || end == std::string::npos || end < begin) {
        return std::nullopt;
    }
    const auto text = begin + node.size() + 2;
    try {
        return ToInt32(line.substr(text, end - text));
    } catch (const Failure&) {
        return std::nullopt;
    }
}

void AddLine(const std::string& line, Date day, Presence& time)
{
    const auto start = NumberIn(line, "StartTime");
    const auto end = NumberIn(line, "EndTime");
    if (!start || !end || line.find("<Detail>") != std::string::npos) {
        return;
    }
    const bool continues = line.find("<Continuation>") != std::string::npos;
    time.Add(day.Seconds() + (continues ? *end - SlotSeconds : *start), day.Seconds() + *end);
}

void AddFile(FileSystemObject& fileSystem, const std::string& path, Date day, Presence& time)
{
    try {
        const auto stream = fileSystem.OpenTextFile(path, OpenMode::Reading, false);
        stream->ReadLine();
        for (;;) {
            AddLine(stream->ReadLine(), day, time);
        }
    } catch (const Failure&) {
        // The end of the file, or one that can't be read.
    }
}

}

void AddRecordersTime(const Profile& profile, Presence& time)
{
    const auto state = StateOfRecorder(profile.DataFolder());
    for (const auto& slot : state.slots) {
        time.Add(slot.start, slot.start + SlotSeconds);
    }
    for (const auto& stretch : state.stretches) {
        const auto begin = stretch.begin / MillisecondsOfSecond;
        const auto end = (stretch.end + MillisecondsOfSecond - 1) / MillisecondsOfSecond;
        time.Add(begin - begin % SlotSeconds, end + (SlotSeconds - end % SlotSeconds) % SlotSeconds);
    }
    for (const auto& line : state.unsaved) {
        AddLine(line.text, Date::FromSeconds(line.midnight), time);
    }
}

void AddWaitingLines(const Profile& profile, Presence& time)
{
    auto& fileSystem = *profile.Surroundings().fileSystem;
    if (!fileSystem.FolderExists(profile.DataFolder())) {
        return;
    }
    constexpr std::size_t YearDigits = 4;
    for (const auto& file : fileSystem.GetFolder(profile.DataFolder()).files) {
        if (const auto key = TrackerDay(file.name); !key.empty()) {
            AddFile(fileSystem, file.path,
                Date::FromTexts(
                    key.substr(0, YearDigits), std::stoi(key.substr(YearDigits, 2)), key.substr(YearDigits + 2)),
                time);
        }
    }
}

}
