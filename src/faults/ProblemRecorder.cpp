#include "faults/ProblemRecorder.h"

#include "faults/UndoneWork.h"

#include <string>
#include <utility>

namespace tempodial {

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
    } else if (const auto undone = UndoneWork(call, failure); !undone.empty()) {
        mProblems->NoteFile(std::string(call.path),
            "couldn't be " + std::string(undone) + ": " + failure.Description()
                + ": see to the file and run the command again");
    }
}

}
