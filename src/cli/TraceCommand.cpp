#include "cli/Commands.h"
#include "session/OpenProfile.h"
#include "session/TraceTail.h"
#include "terminal/Arguments.h"

#include <limits>

namespace tempodial {

namespace {

class TraceCommand final : public Command
{
public:
    TraceCommand()
        : Command({ "trace", "Show the last lines of the trace",
            "The trace tells step by step what was done and what went wrong. Its older\n"
            "lines stand in WorkLogTrace2.out and the newer ones in WorkLogTrace1.out, in\n"
            "the data folder of the profile.\n"
            "\n"
            "  tempodial trace\n"
            "  tempodial trace --lines 200" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--lines N", mLines, "How many lines; default 20");
    }

    Reply Run(const Options& options) override
    {
        constexpr auto Most = std::numeric_limits<std::int32_t>::max();
        TraceTail tail(static_cast<std::size_t>(ToCount("--lines", mLines, 1, Most)));
        const auto profile = ReadProfile(options);
        tail.Read(profile);
        Reply reply;
        const auto lines = tail.Lines();
        reply.document.Set("lines", lines);
        for (const auto& line : lines) {
            reply.text += line + "\n";
        }
        return reply;
    }

private:
    std::string mLines = "20";
};

}

std::unique_ptr<Command> MakeTraceCommand()
{
    return std::make_unique<TraceCommand>();
}

}
