#pragma once

#include "cli/Options.h"
#include "cli/Reply.h"
#include "terminal/ExitStatus.h"

#include <ostream>
#include <string>
#include <utility>

namespace tempodial {

/// Prints what commands answer: the answer itself on one stream, which may be a terminal, and what is told beside it on
/// another.
class ReplyPrinter
{
public:
    /// Takes the program's name for messages.
    ReplyPrinter(std::string program, std::ostream& out, std::ostream& error)
        : mProgram(std::move(program))
        , mOut(out)
        , mError(error)
    {
    }

    /// Prints it in the form that the options ask for; the status with which the program ends. A reader who goes away
    /// ends the process.
    ExitStatus Print(const Reply& reply, const Options& options);

private:
    void PrintText(const Reply& reply, const Options& options);
    void PrintMessages(const Reply& reply, bool isQuiet);

    std::string mProgram;
    std::ostream& mOut;
    std::ostream& mError;
};

}
