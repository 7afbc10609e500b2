#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/DayRangeArguments.h"
#include "cli/Interruption.h"
#include "cli/OutputFile.h"
#include "host/system/HostClock.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tempodial {

namespace {

/// The words for what a report is grouped by; the add-in counts its types from 1.
constexpr std::array<std::string_view, 4> TypeNames { "project", "application", "description", "date" };

class ReportCommand final : public Command
{
public:
    ReportCommand()
        : Command({ "report", "Tell where the time of a day or of several went",
            "Sums up the activities that touch the range, both days included, and lists\n"
            "them. Nothing is imported: \"sync\" does that. The report is printed, or\n"
            "written with its table as an e-mail that your mail program opens for sending.\n"
                + std::string(DayRangeArguments::Help)
                + "Ctrl-C stops it, and nothing is written then.\n"
                  "\n"
                  "  tempodial report --text\n"
                  "  tempodial report --by project --from 2006-10-02 > week.html\n"
                  "  tempodial report --by date --work-week --out week.eml" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        arguments.Optional(
            "--by WHAT", mBy, "What to sum up by: project, application, description or\ndate; default application");
        arguments.Flag("--text", mIsText, "Plain text instead of HTML");
        arguments.Flag("--no-details", mHasNoDetails, "No list of the activities");
        arguments.Flag("--no-csv", mHasNoCsv, "No table (CSV) attached");
        arguments.Flag("--work-week", mIsWorkWeek, "Only the hours of your working days");
        mOut.Declare(arguments, "The e-mail to write (.eml), instead of standard output", false);
    }

    Reply Run(const Options& options) override
    {
        const auto days = mDays.Days(HostClock(options.now).Now());
        const auto type = Type();
        const bool isFile = mOut.IsNamed();
        const Interruption interruption;
        ConnectedRun run(options);
        const bool hasText = !Interruption::IsRequested()
            && run.AddIn().CreateReport(days.first, days.last, type, !mHasNoDetails, !mHasNoCsv, !mIsText, mIsWorkWeek);
        auto mail = run.TakeShownMail();
        auto reply = run.Concluded({});
        if (reply.status == ExitStatus::Interrupted) {
            return reply;
        }
        if (!hasText || mail.body.empty() || !HasTable(mail, run)) {
            reply.status = ExitStatus::NotDone;
            reply.complaints.emplace_back(
                "the report isn't whole and isn't given: see the trace with \"tempodial trace\"");
            return reply;
        }
        for (auto& attachment : mail.attachments) {
            attachment.type = "text/csv; charset=utf-8";
        }
        if (options.json) {
            reply.document = Document(mail);
        }
        if (isFile) {
            mOut.Write(mail);
            reply.summary = mOut.Summary();
        } else {
            reply.content = std::move(mail.body);
        }
        return reply;
    }

private:
    std::int32_t Type() const
    {
        const auto* const found = std::find(TypeNames.begin(), TypeNames.end(), mBy);
        if (found == TypeNames.end()) {
            throw UsageError("--by can't be \"" + mBy + "\": give project, application, description or date");
        }
        return static_cast<std::int32_t>(found - TypeNames.begin()) + 1;
    }

    /// True when the mail of a report has all of the table, if one is wanted.
    bool HasTable(const MailDraft& mail, const ConnectedRun& run) const
    {
        return mHasNoCsv
            || (!mail.attachments.empty() && !run.HasProblemWith(run.DataPath(mail.attachments.front().name)));
    }

    static JsonValue Document(const MailDraft& mail)
    {
        JsonValue document { { "subject", mail.subject }, { "body", mail.body }, { "html", mail.isHtml },
            { "csv", nullptr } };
        if (!mail.attachments.empty()) {
            document.Set("csv", mail.attachments.front().content);
        }
        return document;
    }

    DayRangeArguments mDays;
    std::string mBy = "application";
    bool mIsText = false;
    bool mHasNoDetails = false;
    bool mHasNoCsv = false;
    bool mIsWorkWeek = false;
    OutputFile mOut;
};

}

std::unique_ptr<Command> MakeReportCommand()
{
    return std::make_unique<ReportCommand>();
}

}
