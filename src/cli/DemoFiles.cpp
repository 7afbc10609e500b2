#include "cli/DemoFiles.h"

#include "base/Failure.h"
#include "base/IsoDate.h"
#include "base/Text.h"
#include "cli/CommandError.h"
#include "cli/DemoTracker.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

namespace tempodial {

namespace {

/// The note that tells of files that aren't all there yet.
constexpr auto NoteName = "demo-unfinished.txt";

std::string TextOf(const std::vector<std::string>& lines)
{
    std::string text;
    for (const auto& line : lines) {
        text += line;
        text += CrLf;
    }
    return text;
}

std::string NoteOf(const DemoFiles::Recipe& recipe)
{
    return std::to_string(recipe.seed) + " " + std::to_string(recipe.days) + " " + IsoMoment(recipe.now);
}

/// What a note says; nothing when nobody can tell.
std::optional<DemoFiles::Recipe> RecipeOf(const std::string& note)
{
    const auto words = Split(note, " ");
    if (words.size() != 3) {
        return std::nullopt;
    }
    try {
        constexpr auto Most = std::numeric_limits<std::int32_t>::max();
        return DemoFiles::Recipe { static_cast<std::uint32_t>(ToCount("seed", words[0], 0, Most)),
            ToCount("days", words[1], 1, SavedDataDays + 1), ToMomentWithSeconds("now", words[2]) };
    } catch (const UsageError&) {
        return std::nullopt;
    }
}

}

DemoFiles::DemoFiles(const Profile& profile)
    : mProfile(profile)
    , mFiles(*profile.Surroundings().fileSystem)
{
}

DemoFiles::Count DemoFiles::Write(const Recipe& recipe) const
{
    if (!mFiles.FolderExists(mProfile.DataFolder())) {
        mFiles.CreateFolder(mProfile.DataFolder());
    }
    RemoveUnfinished();
    RequireNoTrackerFiles();
    Count count;
    std::vector<std::string> written { PathOf(NoteName) };
    auto path = written.front();
    try {
        WriteLines(path, { NoteOf(recipe) });
        for (const auto& file : DemoTracker(recipe.seed, recipe.now).Files(recipe.days)) {
            path = PathOf(file.name);
            WriteLines(path, file.lines);
            written.push_back(path);
            ++count.files;
            count.lines += file.lines.size() - 1;
        }
        mFiles.DeleteFile(written.front(), true);
    } catch (const Failure& failure) {
        // The note goes last.
        std::reverse(written.begin(), written.end());
        for (const auto& other : written) {
            if (mFiles.FileExists(other)) {
                mFiles.DeleteFile(other, true);
            }
        }
        throw CommandError(
            path + " couldn't be written: " + failure.Description() + ": see to the profile's folder and its disk");
    }
    return count;
}

void DemoFiles::RemoveUnfinished() const
{
    const auto note = PathOf(NoteName);
    if (!mFiles.FileExists(note)) {
        return;
    }
    if (const auto recipe = RecipeOf(Replace(Content(note), CrLf, ""))) {
        for (const auto& file : DemoTracker(recipe->seed, recipe->now).Files(recipe->days)) {
            const auto path = PathOf(file.name);
            if (mFiles.FileExists(path) && Content(path) == TextOf(file.lines)) {
                mFiles.DeleteFile(path, true);
            }
        }
    }
    mFiles.DeleteFile(note, true);
}

void DemoFiles::RequireNoTrackerFiles() const
{
    const auto files = mFiles.GetFolder(mProfile.DataFolder()).files;
    const auto found = std::find_if(
        files.begin(), files.end(), [](const auto& file) { return file.name.starts_with(TrackerFilePrefix); });
    if (found != files.end()) {
        throw CommandError(
            "there are tracker files already, such as " + found->path + ": name an empty profile with --profile");
    }
}

std::string DemoFiles::PathOf(const std::string& name) const
{
    return DataPath(mProfile, name);
}

void DemoFiles::WriteLines(const std::string& path, const std::vector<std::string>& lines) const
{
    const auto stream = mFiles.OpenTextFile(path, OpenMode::Writing, true);
    for (const auto& line : lines) {
        stream->WriteLine(line);
    }
    stream->Close();
}

std::string DemoFiles::Content(const std::string& path) const
{
    try {
        return mFiles.OpenTextFile(path, OpenMode::Reading, false)->ReadAll();
    } catch (const Failure&) {
        // Nothing that was written to its end.
        return {};
    }
}

}
