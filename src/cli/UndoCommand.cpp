#include "cli/Commands.h"
#include "session/OpenProfile.h"
#include "session/Steps.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"

#include <limits>
#include <optional>

namespace tempodial {

namespace {

class UndoCommand final : public Command
{
public:
    UndoCommand()
        : Command({ "undo", "Take a step back",
            "Takes back the last step that changed the log or the projects, or step N of\n"
            "\"log\". Activities that were changed again since stay as they are and are\n"
            "counted. An undo is a step too: its number takes it back.\n"
            "\n"
            "  tempodial undo\n"
            "  tempodial undo 12 --preview" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("N", mNumber, "The step; default the last one");
        arguments.Flag("--preview", mIsPreview, "Only tell what would be taken back");
    }

    Reply Run(const Options& options) override
    {
        const auto number = mNumber
            ? std::optional<std::int64_t>(ToCount("N", *mNumber, 1, std::numeric_limits<std::int32_t>::max()))
            : std::nullopt;
        const auto profile = OpenProfile(options);
        Steps steps(profile);
        const auto undone = mIsPreview ? steps.Preview(number) : steps.Undo(number, options.command);
        Reply reply;
        reply.document = { { "step", undone.step.number }, { "command", undone.step.command },
            { "restored", undone.items.restored }, { "kept", undone.items.kept } };
        reply.summary = Summary(undone);
        return reply;
    }

private:
    std::string Summary(const UndoneStep& undone) const
    {
        const auto& [step, items] = undone;
        const auto named = std::to_string(step.number) + ", " + IsolatedLine(step.command) + "\n";
        std::string done;
        const auto add = [&done](std::int64_t count, const char* what) {
            if (count > 0) {
                done += (done.empty() ? "" : ", ") + Count(count) + what;
            }
        };
        add(items.restored - items.removed, " restored");
        add(items.removed, " removed");
        add(items.kept, " changed since and kept");
        if (items.restored == 0 && items.kept > 0 && !step.rulesAfter) {
            return (mIsPreview ? "Nothing would go back of step " : "Nothing went back of step ") + named + done
                + "; \"tempodial undo N\" takes another step back\n";
        }
        return (mIsPreview ? "Would take back step " : "Taken back: step ") + named
            + (done.empty() ? Count(0) + " restored" : done) + "\n";
    }

    static std::string Count(std::int64_t activities)
    {
        return std::to_string(activities) + (activities == 1 ? " activity" : " activities");
    }

    std::optional<std::string> mNumber;
    bool mIsPreview = false;
};

}

std::unique_ptr<Command> MakeUndoCommand()
{
    return std::make_unique<UndoCommand>();
}

}
