#include "faults/ProblemRecorder.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace tempodial {

namespace {

bool IsOrdinary(const Failure& failure)
{
    return failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound) || failure.Is(Error::InputPastEnd);
}

/// What couldn't be done with a file, empty for calls that only ask for it.
std::string_view Undone(const InterposedCall& call)
{
    using Row = std::pair<std::string_view, std::string_view>;
    static constexpr std::array Rows { Row { "CreateFolder", "made" }, Row { "GetFolder", "read" },
        Row { "MoveFile", "moved" }, Row { "CopyFile", "copied" }, Row { "DeleteFile", "deleted" },
        Row { "ReadLine", "read" }, Row { "ReadAll", "read" }, Row { "Write", "written" },
        Row { "WriteLine", "written" }, Row { "Close", "written" } };
    if (call.member == "OpenTextFile") {
        return call.opensForWriting ? "written" : "read";
    }
    const auto* const row
        = std::find_if(Rows.begin(), Rows.end(), [&](const Row& known) { return known.first == call.member; });
    return row == Rows.end() ? std::string_view() : row->second;
}

}

ProblemRecorder::ProblemRecorder(Ref<Problems> problems)
    : mProblems(std::move(problems))
{
}

void ProblemRecorder::Failed(const InterposedCall& call, const Failure& failure)
{
    const auto name = call.classes.front();
    if (name == "ImportJournal") {
        mProblems->Note("activities couldn't be saved in the mailbox: " + failure.Description()
            + ": see to the disk and run the command again");
    } else if (name == "Registry" && call.member == "Write") {
        mProblems->Note("the value \"" + std::string(call.key) + "\" couldn't be kept in registry.toml: "
            + failure.Description() + ": see to the profile's folder and disk, and run the command again");
    } else if (const auto undone = Undone(call); !call.path.empty() && !undone.empty() && !IsOrdinary(failure)) {
        mProblems->NoteFile(std::string(call.path),
            "couldn't be " + std::string(undone) + ": " + failure.Description()
                + ": see to the file and run the command again");
    }
}

}
