#include "cli/ConnectedRun.h"

#include "base/Failure.h"
#include "cli/CommandLineEventPump.h"
#include "cli/Interruption.h"
#include "cli/ProgressLine.h"
#include "faults/ProblemRecorder.h"
#include "faults/Wrapped.h"
#include "host/store/MailboxTrouble.h"
#include "session/InstalledForm.h"
#include "session/Steps.h"
#include "terminal/Screen.h"
#include "terminal/TerminalText.h"

#include <iostream>
#include <memory>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// A line for progress when standard error is a terminal.
std::unique_ptr<ProgressLine> TerminalLine()
{
    const auto screen = Screen::Of(STDERR_FILENO);
    return screen.isTerminal ? std::make_unique<ProgressLine>(std::cerr, screen.columns) : nullptr;
}

}

ConnectedRun::ConnectedRun(const Options& options)
    : mCommand(options.command)
    , mSession(RequireForm(options))
{
    mSession.Start(Surroundings(options));
    mSession.Mailbox()->MarkStatistics();
}

ConnectedRun::~ConnectedRun()
{
    mSession.End();
    try {
        RequireNoTrouble(mSession.Mailbox());
        PrintMessages();
    } catch (const Failure&) {
        // What is told is the trouble alone.
    }
}

Platform ConnectedRun::Surroundings(const Options& options) const
{
    const auto recorder = MakeRef<ProblemRecorder>(mProblems);
    auto surroundings = mSession.Surroundings(Imports::ByLines);
    surroundings.fileSystem = Wrapped(surroundings.fileSystem, recorder);
    surroundings.registry = Wrapped(surroundings.registry, recorder);
    surroundings.importJournal = Wrapped(surroundings.importJournal, recorder);
    surroundings.messageBox = mMessageBox;
    surroundings.eventPump = MakeRef<CommandLineEventPump>(
        surroundings.eventPump, mSession.Forms(), options.quiet ? nullptr : TerminalLine());
    return surroundings;
}

MailDraft ConnectedRun::TakeShownMail() const
{
    const auto mail = mSession.ShownMail();
    if (!mail) {
        return {};
    }
    for (const auto& path : mail->NotAttached()) {
        mProblems->NoteFile(path, "couldn't be attached: see to the file and run the command again");
    }
    return mail->TakeDraft();
}

void ConnectedRun::AsStep(const std::function<void()>& work)
{
    try {
        Steps(Profile()).Record(mCommand, work);
    } catch (const Failure&) {
        // What couldn't be saved is told by its activities.
        if (Saves().failed.empty()) {
            throw;
        }
    }
}

void ConnectedRun::AsImportStep(
    const std::function<bool(const std::string& dayKey)>& belongs, const std::function<void()>& work) const
{
    const auto& journal = Profile().Journal();
    Steps(Profile()).RecordImports(
        mCommand, [&] { return belongs(journal->Day()); }, work);
}

void ConnectedRun::Reconnect(const Options& options)
{
    mSession.End();
    mSession.Start(Surroundings(options));
}

void ConnectedRun::Select(std::vector<Ref<OutlookItem>> items) const
{
    mSession.Windows().OpenExplorers().front()->Select(std::move(items));
}

Reply ConnectedRun::Concluded(Reply reply)
{
    for (const auto& save : Saves().failed) {
        mProblems->Note("the activity " + InQuotes(save.subject) + " couldn't be saved: " + save.message
            + ": see to the profile's disk and run the command again");
    }
    mSession.End();
    // What the add-in answered then isn't all that there is.
    RequireNoTrouble(mSession.Mailbox());
    PrintMessages();
    reply.complaints = mProblems->Messages();
    for (const auto& path : KeptFiles()) {
        reply.warnings.push_back("a tracker file is too old and wasn't imported as a whole: it is kept as " + path);
    }
    if (Interruption::IsRequested()) {
        reply.status = ExitStatus::Interrupted;
    } else if (!reply.complaints.empty()) {
        reply.status = ExitStatus::NotDone;
    }
    return reply;
}

Reply ConnectedRun::ConcludedWithChanges(std::size_t changed)
{
    Reply reply;
    reply.document.Set("changed", changed);
    reply.summary = std::to_string(changed) + (changed == 1 ? " activity changed\n" : " activities changed\n");
    return Concluded(std::move(reply));
}

void ConnectedRun::PrintMessages()
{
    std::cerr << mMessages.str();
    std::cerr.flush();
    mMessages.str("");
}

}
