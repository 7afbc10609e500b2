#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/OutputFile.h"
#include "cli/PeriodArguments.h"
#include "engine/dialogs/ProblemReportText.h"
#include "session/ProductFacts.h"

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
            "tracker's file of the day go with it; they hold captions of your windows,\n"
            "subjects and addresses of e-mails among them.\n"
            "\n"
            "  tempodial problem-report --expected \"an activity for my letter\" \\\n"
            "      --actual \"none was there\" --day yesterday --out problem.eml" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("--expected TEXT", mExpected, "What you expected to happen");
        arguments.Required("--actual TEXT", mActual, "What happened instead");
        arguments.Optional(
            "--day DAY", mDay, "When it was: YYYY-MM-DD, today, yesterday or monday to\nsunday; default today");
        mOut.Declare(arguments, "The e-mail to write (.eml)", true);
    }

    Reply Run(const Options& options) override
    {
        const auto day = PeriodArguments::ToDay("--day", mDay, options);
        (void)mOut.IsNamed();
        (void)mOut.Form({ "eml" });
        ConnectedRun run(options);
        run.AddIn().ReportProblem(ProblemReportText::Body(run.Host().formats->LongDate(day), BoxText(mExpected),
                                      BoxText(mActual), ProductVersion),
            day, false, false);
        const auto mail = run.TakeShownMail();
        auto reply = run.Concluded({});
        mOut.Write(mail, reply);
        auto names = JsonValue::Array();
        for (const auto& attachment : mail.attachments) {
            names.Append(attachment.name);
        }
        reply.document = { { "subject", mail.subject }, { "body", mail.body }, { "attachments", std::move(names) } };
        return reply;
    }

private:
    std::string mExpected;
    std::string mActual;
    std::string mDay = "today";
    OutputFile mOut;
};

}

std::unique_ptr<Command> MakeProblemReportCommand()
{
    return std::make_unique<ProblemReportCommand>();
}

}
