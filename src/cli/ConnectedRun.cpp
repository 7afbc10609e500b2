#include "cli/ConnectedRun.h"

#include "cli/CommandLineEventPump.h"
#include "cli/Interruption.h"
#include "cli/ProgressLine.h"
#include "faults/ProblemRecorder.h"
#include "faults/Wrapped.h"
#include "forms/FormModelFactory.h"

#include <memory>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// A line for progress when standard error is a terminal.
std::unique_ptr<ProgressLine> TerminalLine()
{
    if (::isatty(STDERR_FILENO) == 0) {
        return nullptr;
    }
    constexpr int UsualColumns = 80;
    winsize size {};
    const bool known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return std::make_unique<ProgressLine>(std::cerr, known ? size.ws_col : UsualColumns);
}

}

ConnectedRun::ConnectedRun(const Options& options)
    : mProfile(OpenProfile(options))
{
    mSession.emplace(mProfile.Mailbox(), Surroundings(options));
    mProfile.Mailbox()->MarkStatistics();
}

Ref<const Platform> ConnectedRun::Surroundings(const Options& options) const
{
    const auto platform = MakeRef<Platform>(mProfile.Surroundings());
    const auto forms = MakeRef<FormModelFactory>();
    const auto recorder = MakeRef<ProblemRecorder>(mProblems);
    platform->fileSystem = Wrapped(platform->fileSystem, recorder);
    platform->registry = Wrapped(platform->registry, recorder);
    platform->importJournal = Wrapped(platform->importJournal, recorder);
    platform->forms = forms;
    platform->messageBox = mMessageBox;
    platform->eventPump
        = MakeRef<CommandLineEventPump>(platform->eventPump, forms, options.quiet ? nullptr : TerminalLine());
    return platform;
}

MailDraft ConnectedRun::TakeShownMail() const
{
    const auto& mails = mSession->Application().Mails();
    if (mails.empty()) {
        return {};
    }
    for (const auto& path : mails.back()->NotAttached()) {
        mProblems->Note(path + " couldn't be attached: see to the file and run the command again");
    }
    return mails.back()->TakeDraft();
}

Reply ConnectedRun::Concluded(Reply reply)
{
    for (const auto& save : Saves().failed) {
        mProblems->Note("the activity \"" + save.subject + "\" couldn't be saved: " + save.message
            + ": see to the profile's disk and run the command again");
    }
    mSession.reset();
    reply.complaints = mProblems->Messages();
    if (Interruption::IsRequested()) {
        reply.status = ExitStatus::Interrupted;
    } else if (!reply.complaints.empty()) {
        reply.status = ExitStatus::NotDone;
    }
    return reply;
}

Reply ConnectedRun::ConcludedWithChanges()
{
    const auto changed = Saves().created + Saves().extended + Saves().detailed;
    Reply reply;
    reply.document["changed"] = changed;
    reply.summary = std::to_string(changed) + (changed == 1 ? " activity changed\n" : " activities changed\n");
    return Concluded(std::move(reply));
}

}
