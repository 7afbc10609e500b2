#include "base/Failure.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/Interruption.h"
#include "session/LastSync.h"
#include "session/ProductFacts.h"
#include "session/TrackerFiles.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tempodial {

namespace {

/// Line numbers that a message names.
constexpr std::size_t NumbersShown = 10;

std::string NameIn(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string Listed(const std::vector<std::string>& texts)
{
    std::string list;
    for (const auto& text : texts) {
        list += (list.empty() ? "" : ", ") + text;
    }
    return list;
}

/// The tracker files that are too old for an import, by name.
std::vector<std::string> TooOldFiles(const ConnectedRun& run)
{
    try {
        return TooOldFiles(*run.Host().fileSystem, run.DataFolder(), run.Host().clock->Now());
    } catch (const Failure&) {
        // A folder that can't be read the import has told of.
        return {};
    }
}

/// The same together with those that the run has put aside.
std::vector<std::string> LeftOut(const ConnectedRun& run)
{
    auto names = TooOldFiles(run);
    for (const auto& path : run.KeptFiles()) {
        names.push_back(NameIn(path));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The numbers of the lines that couldn't be read, by the name of their file.
std::map<std::string, std::vector<std::int64_t>> UnreadLines(const ConnectedRun& run)
{
    std::map<std::string, std::vector<std::int64_t>> lines;
    for (const auto& line : run.UnreadLines()) {
        lines[TrackerFileName(line.day)].push_back(line.number);
    }
    return lines;
}

JsonValue UnreadJson(const ConnectedRun& run)
{
    auto unread = JsonValue::Array();
    for (const auto& [file, numbers] : UnreadLines(run)) {
        for (const auto number : numbers) {
            unread.Append({ { "file", file }, { "line", number } });
        }
    }
    return unread;
}

/// What is told of files and lines that were left out.
std::vector<std::string> Remarks(const ConnectedRun& run)
{
    std::vector<std::string> remarks;
    for (const auto& [file, numbers] : UnreadLines(run)) {
        std::vector<std::string> shown;
        for (std::size_t i = 0; i < std::min(numbers.size(), NumbersShown); ++i) {
            shown.push_back(std::to_string(numbers[i]));
        }
        const auto more = numbers.size() - shown.size();
        remarks.push_back(file + ": couldn't read " + (numbers.size() == 1 ? "line " : "lines ") + Listed(shown)
            + (more == 0 ? "" : " and " + std::to_string(more) + " more"));
    }
    if (const auto files = TooOldFiles(run); !files.empty()) {
        remarks.push_back("left out as older than " + std::to_string(SavedDataDays) + " days: " + Listed(files));
    }
    return remarks;
}

class SyncCommand final : public Command
{
public:
    SyncCommand()
        : Command({ "sync", "Make activities of the tracker's files",
            "Imports what the tracker wrote today and in the 21 days before: new activities\n"
            "are created, running ones extended, and short ones in between listed as\n"
            "details. What was imported isn't imported again. A file of a past day is then\n"
            "kept under its finished name. Files that are older and lines that can't be\n"
            "read are named. Ctrl-C stops it; the next sync goes on from there.\n"
            "\n"
            "  tempodial sync\n"
            "  tempodial sync --quiet --json" })
    {
    }

    void Declare(ArgumentList&) override { }

    Reply Run(const Options& options) override
    {
        const Interruption interruption;
        ConnectedRun run(options);
        // As long as nothing else is kept it was interrupted, by whatever it was.
        LastSync { .when = run.Host().clock->Now(), .outcome = "interrupted" }.Keep(run.Profile());
        if (!Interruption::IsRequested()) {
            run.AddIn().SyncData(SavedDataDays, true);
        }
        if (run.WasAddInRefusing()) {
            run.Complain("no new activity can be made, since the form of activities can't be used: install the program "
                         "again");
        }
        auto reply = run.Concluded(Answer(run));
        Keep(run, reply);
        return reply;
    }

private:
    static void Keep(const ConnectedRun& run, const Reply& reply)
    {
        const auto& saves = run.Saves();
        const bool hasSaved = saves.created + saves.extended + saves.detailed > 0;
        const auto* outcome = reply.status == ExitStatus::Done ? "whole"
            : reply.status == ExitStatus::Interrupted          ? "interrupted"
            : hasSaved                                         ? "partly"
                                                               : "failed";
        LastSync { run.Host().clock->Now(), outcome, saves.created, saves.extended, saves.detailed,
            static_cast<std::int32_t>(run.UnreadLines().size()) }
            .Keep(run.Profile());
    }

    static Reply Answer(const ConnectedRun& run)
    {
        const bool cancelled = Interruption::IsRequested();
        const auto& saves = run.Saves();
        Reply reply;
        reply.document = { { "created", saves.created }, { "extended", saves.extended }, { "detailed", saves.detailed },
            { "cancelled", cancelled }, { "leftOut", LeftOut(run) }, { "unread", UnreadJson(run) } };
        reply.summary = std::to_string(saves.created) + " created, " + std::to_string(saves.extended) + " extended, "
            + std::to_string(saves.detailed) + " detailed" + (cancelled ? ", then interrupted" : "") + "\n";
        reply.remarks = Remarks(run);
        return reply;
    }
};

}

std::unique_ptr<Command> MakeSyncCommand()
{
    return std::make_unique<SyncCommand>();
}

}
