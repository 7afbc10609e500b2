#include "cli/Commands.h"
#include "session/Checkup.h"

namespace tempodial {

namespace {

class DoctorCommand final : public Command
{
public:
    DoctorCommand()
        : Command({ "doctor", "Look at everything, and say what is wrong and what to do",
            "Looks whether the mailbox is whole, the registry and the history are readable,\n"
            "the form and the templates are there, each line of the tracker's files can be\n"
            "read, the profile is closed to others, and there is room on the disk. Changes\n"
            "nothing. When something is wrong, the exit status is 1.\n"
            "\n"
            "  tempodial doctor\n"
            "  tempodial doctor --json" })
    {
    }

    void Declare(ArgumentList&) override { }

    Reply Run(const Options& options) override
    {
        const Checkup checkup(options);
        if (!checkup.HasProfile()) {
            options.warn("no profile at " + checkup.Path() + " yet");
        }
        Reply reply { .document = JsonValue::Array() };
        for (const auto& finding : checkup.Findings()) {
            reply.document.Append({ { "check", finding.check }, { "ok", finding.isRight }, { "what", finding.what },
                { "todo", finding.todo } });
            reply.text += (finding.isRight ? "ok     " : "WRONG  ") + finding.check + ": " + finding.what
                + (finding.todo.empty() ? "" : ": " + finding.todo) + "\n";
        }
        reply.status = checkup.IsAllRight() ? ExitStatus::Done : ExitStatus::NotDone;
        return reply;
    }
};

}

std::unique_ptr<Command> MakeDoctorCommand()
{
    return std::make_unique<DoctorCommand>();
}

}
