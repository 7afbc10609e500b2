#include "session/DataFiles.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "engine/core/ProductWords.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FolderDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "portable/TextEncoding.h"
#include "session/ProductFacts.h"
#include "session/TrackerDay.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace tempodial {

namespace {

/// The name of a tracker's file as the tracker gave it: without the mark of a finished one, and without the number of
/// one that was kept beside another.
std::string OriginalName(const std::string& name)
{
    const auto done = FinishedTrackerFileName("").find(".out") - std::string_view(TrackerFilePrefix).size();
    auto original = name;
    if (name.starts_with(FinishedTrackerFileName("").substr(0, std::string_view(TrackerFilePrefix).size() + done))) {
        original.erase(std::string_view(TrackerFilePrefix).size(), done);
    }
    const auto number = original.rfind(".out.");
    return number == std::string::npos ? original : original.substr(0, original.rfind('.'));
}

/// The lines of a text, each with its end.
std::vector<std::string_view> RawLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        lines.push_back(text.substr(0, end == std::string_view::npos ? text.size() : end + 1));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

std::string TextOf(std::string_view line)
{
    if (line.ends_with('\n')) {
        line.remove_suffix(1);
    }
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return DecodedLine(std::string(line));
}

}

std::vector<DataFile> DataFile::In(const std::string& folder)
{
    std::vector<DataFile> files;
    for (const auto& level : { folder, folder + "/" + KeptFolderName }) {
        if (!StatusAt(NativePath::Exactly(level), Links::Followed)) {
            continue;
        }
        for (const auto& entry : FolderDescriptor(NativePath::Exactly(level)).Everything()) {
            auto path = NativePath::Exactly(level + "/" + entry.name);
            const auto status = StatusAt(path, Links::Followed);
            if (status && status->kind == FileStatus::Kind::File) {
                const auto original = OriginalName(entry.name);
                files.push_back({ entry.name, std::move(path), TrackerDay(original),
                    original.size() < entry.name.size() && level == folder });
            }
        }
    }
    return files;
}

std::vector<std::string> DataFile::Lines() const
{
    const auto content = FileDescriptor(path, Opening::Reading).ReadAll();
    std::vector<std::string> lines;
    for (const auto line : RawLines(content)) {
        lines.push_back(TextOf(line));
    }
    return lines;
}

void DataFile::RequireWritable() const
{
    const FileDescriptor file(path, Opening::Writing);
    file.RequireWritable();
    file.RequireUnlocked();
}

void DataFile::TakeOut(
    const std::function<bool(std::size_t number, const std::string& line)>& isGone, bool mayGrow) const
{
    const FileDescriptor old(path, Opening::Reading);
    const auto content = old.ReadAll();
    std::string rest;
    const auto lines = RawLines(content);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!isGone(i, TextOf(lines[i]))) {
            rest += lines[i];
            ++kept;
        }
    }
    if (kept == lines.size()) {
        return;
    }
    if (!dayKey.empty() && kept <= 1 && !mayGrow) {
        Remove(path);
        FolderDescriptor(NativePath::Exactly(path.Folder())).Sync();
        return;
    }
    {
        ReplacementFile replacement(path);
        replacement.Write(rest);
        replacement.Write(old.ReadAll()); // what was added since
        replacement.SetModificationTime(old.ModificationTime());
        replacement.Commit();
    }
    if (const auto late = old.ReadAll(); !late.empty()) {
        FileDescriptor(path, Opening::Appending).Write(late);
    }
}

}
