#include "track/DayWriter.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/TrackerFile.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FolderDescriptor.h"
#include "host/files/ReplacementFile.h"

#include <algorithm>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::size_t LargestDay = std::size_t { 64 } << 20;
/// Days that are remembered: yesterday's last slot comes when today has begun.
constexpr std::size_t MostDays = 2;

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

ErasedLines DayWriter::Erase(std::int64_t midnight, std::int64_t from, std::int64_t taken)
{
    mDays.erase(midnight);
    const auto path = PathOf(midnight);
    auto content = ContentOf(path);
    const auto erased = EraseLines(content, from, taken);
    if (erased.forgotten > 0) {
        ReplacementFile file(NativePath::Exactly(path), ReplacementFile::Old::MustExist);
        file.Write(content);
        file.Commit();
    }
    return erased;
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
