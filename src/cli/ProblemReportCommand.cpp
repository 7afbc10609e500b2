#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/OutputFile.h"
#include "cli/PeriodArguments.h"
#include "cli/Redaction.h"
#include "engine/dialogs/ProblemReportText.h"
#include "session/ProductFacts.h"
#include "terminal/UsageError.h"

#include <optional>
#include <vector>

namespace tempodial {

namespace {

/// A text of the arguments as a text box has it.
std::string BoxText(const std::string& text)
{
    return Replace(Replace(text, CrLf, "\n"), "\n", CrLf);
}

class ProblemReportCommand final : public Command
{
public:
    ProblemReportCommand()
        : Command({ "problem-report", "Write an e-mail to the support desk about a problem",
            "Writes an e-mail that your mail program opens for sending. The trace and the\n"
            "tracker's file of the day are attached; they hold titles of your windows, with\n"
            "subjects and addresses of e-mails among them. --redact hides all of these: it\n"
            "leaves times and kinds of programs in the tracker's file, and the first words of\n"
            "each line in the trace. --list writes nothing and shows what would be attached.\n"
            "\n"
            "  tempodial problem-report --list\n"
            "  tempodial problem-report --expected \"an activity for my letter\" \\\n"
            "      --actual \"none was there\" --day yesterday --out problem.eml" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--expected TEXT", mExpected, "What you expected to happen");
        arguments.Optional("--actual TEXT", mActual, "What happened instead");
        arguments.Optional(
            "--day DAY", mDay, "When it was: YYYY-MM-DD, today, yesterday or monday to\nsunday; default today");
        mOut.Declare(arguments, "The e-mail to write (.eml)", false);
        arguments.Flag("--redact", mIsRedacted, "Hide captions, addresses and names in what goes with it");
        arguments.Flag("--list", mIsListed, "Write nothing, and show what would go");
    }

    Reply Run(const Options& options) override
    {
        const auto day = PeriodArguments::ToDay("--day", mDay, options);
        RequireUsable();
        ConnectedRun run(options);
        run.AddIn().ReportProblem(ProblemReportText::Body(run.Host().formats->LongDate(day),
                                      BoxText(mExpected.value_or("")), BoxText(mActual.value_or("")), ProductVersion),
            day, false, false);
        auto mail = run.TakeShownMail();
        if (mIsRedacted) {
            Redact(mail);
        }
        auto reply = run.Concluded({});
        if (mIsListed) {
            reply.text = Listing(mail);
        } else {
            mOut.Write(mail, "", reply);
        }
        auto names = JsonValue::Array();
        auto files = JsonValue::Array();
        for (const auto& attachment : mail.attachments) {
            names.Append(attachment.name);
            files.Append({ { "name", attachment.name }, { "bytes", attachment.content.size() } });
        }
        reply.document = { { "subject", mail.subject }, { "body", mail.body }, { "attachments", std::move(names) },
            { "files", std::move(files) } };
        return reply;
    }

private:
    /// Fails with a `UsageError` for a report that isn't only listed and lacks something, and the other way round.
    void RequireUsable() const
    {
        const bool isNamed = mOut.IsNamed();
        if (mIsListed && isNamed) {
            throw UsageError("--list writes nothing: leave --out out");
        }
        if (!mIsListed && (!mExpected || !mActual || !isNamed)) {
            const auto* missing = !mExpected ? "--expected" : !mActual ? "--actual" : "--out";
            throw UsageError(std::string(missing) + R"( is required: see "tempodial problem-report --help")");
        }
        if (isNamed) {
            (void)mOut.Form({ "eml" });
        }
    }

    /// Hides the words of the user in what goes with a mail, and leaves out what can't be told apart.
    static void Redact(MailDraft& mail)
    {
        std::vector<MailDraft::Attachment> kept;
        for (auto& attachment : mail.attachments) {
            const bool isTrace = attachment.name == TraceFileName || attachment.name == OlderTraceFileName;
            if (isTrace) {
                attachment.content = RedactedTrace(attachment.content);
            } else if (attachment.name.starts_with(TrackerFilePrefix)) {
                attachment.content = RedactedTrackerFile(attachment.content);
            } else {
                continue;
            }
            kept.push_back(std::move(attachment));
        }
        mail.attachments = std::move(kept);
    }

    static std::string Listing(const MailDraft& mail)
    {
        std::string text = "An e-mail to";
        for (const auto& recipient : mail.recipients) {
            text += " " + recipient;
        }
        text += ", with what you expected, what happened, the day and the version, and with";
        text += mail.attachments.empty() ? " no files\n" : " these files:\n";
        for (const auto& attachment : mail.attachments) {
            text += "  " + attachment.name + ", " + std::to_string(attachment.content.size()) + " bytes\n";
        }
        return text;
    }

    std::optional<std::string> mExpected;
    std::optional<std::string> mActual;
    std::string mDay = "today";
    OutputFile mOut;
    bool mIsRedacted = false;
    bool mIsListed = false;
};

}

std::unique_ptr<Command> MakeProblemReportCommand()
{
    return std::make_unique<ProblemReportCommand>();
}

}
