#include "base/Text.h"
#include "cli/Commands.h"
#include "session/OpenProfile.h"
#include "session/TraceTail.h"
#include "terminal/Arguments.h"

#include <limits>
#include <string>
#include <vector>

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
        reply.text = TextOf(lines);
        return reply;
    }

private:
    static constexpr auto BeginOfAFile = "Tempodial Version: ";

    /// True for what begins as the lines of the trace do: with the number of a thread, a moment and a colon. What is
    /// traced may hold line ends, and what follows them doesn't.
    static bool HasHead(const std::string& line)
    {
        const auto blank = line.find_first_not_of("0123456789");
        return blank != std::string::npos && blank > 0 && line[blank] == ' '
            && line.find(": ", blank) != std::string::npos;
    }

    /// The lines for people, line ends within a traced text as blanks.
    static std::string TextOf(const std::vector<std::string>& lines)
    {
        std::string text;
        bool isTraced = false;
        for (const auto& line : lines) {
            const bool goesOn = isTraced && !HasHead(line) && !line.starts_with(BeginOfAFile);
            if (goesOn) {
                text.back() = ' ';
            }
            text += Replace(line, "\r", " ") + "\n";
            isTraced = goesOn || HasHead(line);
        }
        return text;
    }

    std::string mLines = "20";
};

}

std::unique_ptr<Command> MakeTraceCommand()
{
    return std::make_unique<TraceCommand>();
}

}
