#include "cli/ReplyPrinter.h"

#include "base/Text.h"
#include "terminal/Pager.h"
#include "terminal/ProgramRun.h"
#include "terminal/TerminalText.h"

#include <algorithm>

namespace tempodial {

namespace {

/// What stands behind the content of an answer.
std::string EndOfAnswer(const Reply& reply, const Options& options, const TextLayout& layout)
{
    auto text = reply.text.Text(layout);
    return options.quiet ? text : text + Harmless(reply.summary);
}

/// An answer as a terminal shows it.
std::string ShownAnswer(const Reply& reply, const Options& options, const TextLayout& layout)
{
    return Harmless(Replace(reply.content, CrLf, "\n")) + EndOfAnswer(reply, options, layout);
}

/// True when a text without colours takes more rows than the screen has, the one for the next input included.
bool IsLonger(const std::string& text, const Screen& screen)
{
    int rows = 0;
    for (const auto& line : Split(text, "\n")) {
        rows += 1 + std::max(DisplayWidth(line) - 1, 0) / screen.columns;
        if (rows > screen.rows) {
            return true;
        }
    }
    return false;
}

}

ExitStatus ReplyPrinter::Print(const Reply& reply, const Options& options)
{
    EndWithReader();
    if (!options.json) {
        PrintText(reply, options);
    } else if (!reply.documentText.empty()) {
        mOut << reply.documentText << "\n";
    } else if (!reply.document.IsNull()) {
        mOut << reply.document.Text() << "\n";
    }
    mOut.flush();
    PrintMessages(reply, options.quiet);
    if (!mOut) {
        Complain(mError, mProgram, "the answer couldn't be written: see to the disk or the program that reads it");
        return ExitStatus::NotDone;
    }
    return reply.status;
}

void ReplyPrinter::PrintText(const Reply& reply, const Options& options)
{
    if (!options.screen.isTerminal) {
        // The content may be long, and goes as it is.
        mOut << reply.content << EndOfAnswer(reply, options, options.layout);
        return;
    }
    const auto text = ShownAnswer(reply, options, options.layout);
    const bool isPaged = options.screen.isInteractive && !reply.isRedirected
        && IsLonger(ShownAnswer(reply, options, { .width = options.layout.width }), options.screen);
    if (!isPaged || !Pager::Chosen().Show(text)) {
        mOut << text;
    }
}

void ReplyPrinter::PrintMessages(const Reply& reply, bool isQuiet)
{
    if (!isQuiet) {
        for (const auto& note : reply.notes) {
            mError << HarmlessLine(note) << "\n";
        }
    }
    for (const auto& warning : reply.warnings) {
        Complain(mError, mProgram, warning);
    }
    for (const auto& complaint : reply.complaints) {
        Complain(mError, mProgram, complaint);
    }
    if (!isQuiet) {
        for (const auto& remark : reply.remarks) {
            Complain(mError, mProgram, remark);
        }
    }
}

}
