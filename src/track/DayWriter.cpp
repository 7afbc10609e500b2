#include "track/DayWriter.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/TrackerFile.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FolderDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"

#include <algorithm>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::size_t LargestDay = std::size_t { 64 } << 20;
/// Days that are remembered: yesterday's last slot comes when today has begun.
constexpr std::size_t MostDays = 2;
/// What stands in front of lines where a heading does in a file.
const std::string NoHeading = "\n";

std::string ContentOf(const std::string& path)
{
    try {
        return FileDescriptor(NativePath::Exactly(path), Opening::Reading).ReadAll(LargestDay);
    } catch (const Failure& failure) {
        if (failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound)) {
            return {};
        }
        throw;
    }
}

}

void DayWriter::Add(const FiledSlot& slot)
{
    auto& day = DayOf(slot.midnight);
    if (day.unsaved.empty() && day.slots > 0 && !HasFile(slot.midnight)) {
        // It was loaded as a whole meanwhile, and no line of a new file goes on with one of that.
        day = { DayFile(day.file.LastEnd()), 0, {} };
    }
    if (!day.file.Add(slot.slot)) {
        return;
    }
    ++day.slots;
    for (const auto& line : day.file.TakeLines()) {
        day.unsaved += line;
        day.unsaved += CrLf;
    }
}

bool DayWriter::HasUnsaved() const
{
    return std::any_of(mDays.begin(), mDays.end(), [](const auto& day) { return !day.second.unsaved.empty(); });
}

void DayWriter::Save(int offset)
{
    for (auto& [midnight, day] : mDays) {
        if (!day.unsaved.empty()) {
            SaveDay(midnight, day, offset);
        }
    }
    while (mDays.size() > MostDays) {
        mDays.erase(mDays.begin());
    }
}

void DayWriter::SaveDay(std::int64_t midnight, Day& day, int offset) const
{
    const auto path = PathOf(midnight);
    const auto before = ContentOf(path);
    std::string text;
    if (before.empty()) {
        text = DayFile::Heading(Date::FromSeconds(midnight), offset);
        text += CrLf;
    } else if (before.back() != '\n') {
        text = CrLf; // behind a line that was cut off
    }
    const auto begin = text.size();
    text += day.unsaved;
    const FileDescriptor file(NativePath::Exactly(path), Opening::AppendingOrNew);
    file.RequireWritable();
    try {
        file.Write(text);
    } catch (const Failure&) {
        // Whole lines that have come into the file are there; what was cut off is written again.
        const auto written = std::min(ContentOf(path).size() - before.size(), text.size());
        const auto whole = written == 0 ? std::string::npos : text.rfind('\n', written - 1);
        if (whole != std::string::npos && whole + 1 > begin) {
            day.unsaved = text.substr(whole + 1);
        }
        throw;
    }
    day.unsaved.clear();
    file.Sync();
    if (before.empty()) {
        FolderDescriptor(NativePath::Exactly(mFolder)).Sync();
    }
}

std::vector<UnsavedLine> DayWriter::Unsaved() const
{
    std::vector<UnsavedLine> unsaved;
    for (const auto& [midnight, day] : mDays) {
        for (std::string_view rest = day.unsaved; !rest.empty();) {
            const auto end = rest.find(CrLf);
            unsaved.push_back({ midnight, std::string(rest.substr(0, end)) });
            rest.remove_prefix(end + CrLf.size());
        }
    }
    return unsaved;
}

void DayWriter::Restore(const std::vector<UnsavedLine>& unsaved)
{
    std::map<std::int64_t, std::string> days;
    for (const auto& line : unsaved) {
        days[line.midnight].append(line.text).append(CrLf);
    }
    for (const auto& [midnight, lines] : days) {
        Wait(midnight, lines);
    }
}

int DayWriter::SlotsOn(std::int64_t midnight)
{
    const auto& day = DayOf(midnight);
    return day.slots - WrittenLines::Of(NoHeading + day.unsaved).slots;
}

ErasedLines DayWriter::Erase(std::int64_t midnight, std::int64_t from, std::int64_t taken)
{
    const auto path = PathOf(midnight);
    auto content = ContentOf(path);
    auto erased = EraseLines(content, from, taken);
    if (erased.forgotten > 0) {
        ReplacementFile file(NativePath::Exactly(path), ReplacementFile::Old::MustExist);
        file.Write(content);
        file.Commit();
    }
    if (const auto day = mDays.extract(midnight)) {
        auto lines = NoHeading + day.mapped().unsaved;
        erased.forgotten += EraseLines(lines, from, 0).forgotten;
        Wait(midnight, lines.substr(NoHeading.size()));
    }
    auto loaded = ContentOf(mFolder + "/" + FinishedTrackerFileName(Date::FromSeconds(midnight).DayKey()));
    erased.kept += EraseLines(loaded, from, 0).forgotten;
    return erased;
}

void DayWriter::Wait(std::int64_t midnight, const std::string& lines)
{
    auto& day = DayOf(midnight);
    day.unsaved = LinesBehind(lines, day.file.LastEnd());
    const auto waiting = WrittenLines::Of(NoHeading + day.unsaved);
    if (waiting.slots > 0) {
        day.file = DayFile(waiting.end);
        day.slots += waiting.slots;
    }
}

bool DayWriter::HasFile(std::int64_t midnight) const
{
    return StatusAt(NativePath::Exactly(PathOf(midnight)), Links::Followed).has_value();
}

std::string DayWriter::PathOf(std::int64_t midnight) const
{
    return mFolder + "/" + TrackerFileName(Date::FromSeconds(midnight).DayKey());
}

DayWriter::Day& DayWriter::DayOf(std::int64_t midnight)
{
    const auto found = mDays.find(midnight);
    if (found != mDays.end()) {
        return found->second;
    }
    const auto written = WrittenLines::Of(ContentOf(PathOf(midnight)));
    return mDays.emplace(midnight, Day { DayFile(written.end), written.slots, {} }).first->second;
}

}
