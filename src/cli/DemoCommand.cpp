#include "base/Failure.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/DemoProjects.h"
#include "cli/DemoTracker.h"
#include "host/system/HostClock.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace tempodial {

namespace {

class DemoCommand final : public Command
{
public:
    DemoCommand()
        : Command({ "demo", "Write tracker files of an invented working life, for trying the program",
            "Writes the files that a tracker would have written in the days up to now into\n"
            "the data folder of the profile, unless tracker files are there already.\n"
            "\"tempodial sync\" then makes activities of them. Older days than the 21 before\n"
            "today wouldn't be imported, so there are at most 22. A profile without rules\n"
            "for projects gets four projects that have some.\n"
            "\n"
            "  tempodial --profile /tmp/try demo\n"
            "  tempodial --profile /tmp/try sync" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--days N", mDays, "How many days, the last being today: 1 to 22; default 21");
        arguments.Optional("--seed N", mSeed, "Another number gives another life; default 1");
    }

    Reply Run(const Options& options) override
    {
        constexpr auto MostSeed = std::numeric_limits<std::int32_t>::max();
        const auto days = ToCount("--days", mDays, 1, SavedDataDays + 1);
        const auto seed = static_cast<std::uint32_t>(ToCount("--seed", mSeed, 0, MostSeed));
        const auto profile = OpenProfile(options);
        const auto files = DemoTracker(seed, HostClock(options.now).Now()).Files(days);
        RequireNoTrackerFiles(*profile.Surroundings().fileSystem, profile.DataFolder());
        const auto lines = WriteAll(profile, files);
        AddDemoProjects(profile);
        Reply reply;
        reply.document.Set("files", files.size());
        reply.document.Set("lines", lines);
        reply.summary = std::to_string(files.size()) + " tracker files with " + std::to_string(lines) + " slots in "
            + profile.DataFolder() + "\n\"tempodial sync\" makes activities of them.\n";
        return reply;
    }

private:
    static void RequireNoTrackerFiles(FileSystemObject& fileSystem, const std::string& folder)
    {
        if (!fileSystem.FolderExists(folder)) {
            fileSystem.CreateFolder(folder);
        }
        const auto files = fileSystem.GetFolder(folder).files;
        const auto found = std::find_if(
            files.begin(), files.end(), [](const auto& file) { return file.name.starts_with(TrackerFilePrefix); });
        if (found != files.end()) {
            throw CommandError(
                "there are tracker files already, such as " + found->path + ": name an empty profile with --profile");
        }
    }

    /// Writes all files, or none when one of them can't be written; the number of slots in them.
    static std::size_t WriteAll(const Profile& profile, const std::vector<DemoFile>& files)
    {
        auto& fileSystem = *profile.Surroundings().fileSystem;
        std::size_t lines = 0;
        std::vector<std::string> written;
        for (const auto& file : files) {
            const auto path = DataPath(profile, file.name);
            try {
                Write(fileSystem, path, file.lines);
            } catch (const Failure& failure) {
                for (const auto& other : written) {
                    fileSystem.DeleteFile(other, true);
                }
                throw CommandError(path + " couldn't be written: " + failure.Description()
                    + ": see to the profile's folder and its disk");
            }
            written.push_back(path);
            lines += file.lines.size() - 1;
        }
        return lines;
    }

    static void Write(FileSystemObject& fileSystem, const std::string& path, const std::vector<std::string>& lines)
    {
        const auto stream = fileSystem.OpenTextFile(path, OpenMode::Writing, true);
        for (const auto& line : lines) {
            stream->WriteLine(line);
        }
        stream->Close();
    }

    std::string mDays = "21";
    std::string mSeed = "1";
};

}

std::unique_ptr<Command> MakeDemoCommand()
{
    return std::make_unique<DemoCommand>();
}

}
