#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "session/OpenProfile.h"
#include "session/Steps.h"
#include "terminal/Arguments.h"

#include <limits>
#include <optional>
#include <utility>

namespace tempodial {

namespace {

/// A moment for people: without its seconds, a blank between day and time.
std::string MomentText(Date moment)
{
    return IsoDay(moment) + " " + moment.HourMinute();
}

std::string StateOf(const Step& step)
{
    return step.isTakenBack ? "  (taken back)" : "";
}

class LogCommand final : public Command
{
public:
    LogCommand()
        : Command({ "log", "Show what commands have changed",
            "Shows the steps that changed the log or the projects, newest first: number,\n"
            "moment, how many activities were changed, and the command as it was typed. Steps\n"
            "are kept for 90 days. \"undo\" takes them back. A sync is no step, an import is one.\n"
            "\n"
            "  tempodial log\n"
            "  tempodial log --lines 5" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--lines N", mLines, "How many steps; default all");
    }

    Reply Run(const Options& options) override
    {
        constexpr auto Most = std::numeric_limits<std::int32_t>::max();
        const auto most = mLines ? ToCount("--lines", *mLines, 1, Most) : Most;
        const auto profile = ReadProfile(options);
        const auto steps = Steps(profile).Newest(most);
        Reply reply { .document = JsonValue::Array() };
        using enum TextTable::Side;
        TextTable table({ Right, Left, Right, Left });
        for (const auto& step : steps) {
            reply.document.Append({ { "step", step.number }, { "when", IsoMoment(step.moment) },
                { "command", step.command }, { "activities", step.items } });
            table.Add({ std::to_string(step.number), MomentText(step.moment), std::to_string(step.items),
                step.command + StateOf(step) });
        }
        reply.text += std::move(table);
        if (steps.empty()) {
            reply.summary = "No steps.\n";
        }
        return reply;
    }

private:
    std::optional<std::string> mLines;
};

}

std::unique_ptr<Command> MakeLogCommand()
{
    return std::make_unique<LogCommand>();
}

}
