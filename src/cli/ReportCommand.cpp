#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/Interruption.h"
#include "cli/OutputFile.h"
#include "cli/PeriodArguments.h"
#include "cli/ReportIsolation.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>

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
            "them. Nothing is imported: \"sync\" does that. The report is printed, as plain\n"
            "text on a terminal and else as a page, or written in the form that the end of\n"
            "the file's name says:\n"
            "\n"
            "  .html  a page\n"
            "  .txt   plain text\n"
            "  .csv   the table\n"
            "  .eml   an e-mail with the table, which your mail program opens for sending\n"
            "\n" + std::string(PeriodArguments::Help)
                + "Ctrl-C stops it, and nothing is written then.\n"
                  "\n"
                  "  tempodial report\n"
                  "  tempodial report --by project --from 2006-10-02 > week.html\n"
                  "  tempodial report --by date --work-week --out week.eml\n"
                  "  tempodial report --from 2006-10-02 --out week.html" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        arguments.Optional(
            "--by WHAT", mBy, "What to sum up by: project, application, description or\ndate; default application");
        arguments.Flag("--text", mIsText, "Plain text, also where it isn't printed on a terminal");
        arguments.Flag("--html", mIsHtml, "A page (HTML), also on a terminal");
        arguments.Flag("--no-details", mHasNoDetails, "No list of the activities");
        arguments.Flag("--no-csv", mHasNoCsv, "No table (CSV) attached");
        arguments.Flag("--work-week", mIsWorkWeek, "Only the hours of your working days");
        mOut.Declare(arguments, "The file to write (.html, .txt, .csv, .eml), instead of\nstandard output", false);
    }

    Reply Run(const Options& options) override
    {
        const auto days = mDays.Days(options);
        const auto type = Type();
        if (mIsText && mIsHtml) {
            throw UsageError("--text stands beside --html: leave one of them out");
        }
        const bool isFile = mOut.IsNamed();
        const auto form = isFile ? Form() : "";
        const bool isShown = options.screen.isTerminal && !options.json && (!isFile || mOut.IsStandardOutput());
        const bool isText = mIsText || form == "txt" || (isShown && !mIsHtml);
        const Interruption interruption;
        ConnectedRun run(options);
        const auto create = [&](bool hasCsv, bool isHtml) {
            const bool hasText = !Interruption::IsRequested()
                && run.AddIn().CreateReport(days.first, days.last, type, !mHasNoDetails, hasCsv, isHtml, mIsWorkWeek);
            auto mail = run.TakeShownMail();
            return hasText ? std::move(mail) : MailDraft();
        };
        auto mail = create(!mHasNoCsv, !isText);
        const bool hasBoth = form == "eml" && !isText;
        const auto plainText = hasBoth ? IsolatedReportText(create(false, false).body) : "";
        auto reply = run.Concluded({});
        if (reply.status == ExitStatus::Interrupted) {
            return reply;
        }
        if (mail.body.empty() || plainText.empty() == hasBoth || !HasTable(mail, run)) {
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
        mail.body = mail.isHtml ? IsolatedReportPage(std::move(mail.body)) : IsolatedReportText(std::move(mail.body));
        if (isFile) {
            Write(mail, plainText, form, reply);
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
            throw UsageError("--by can't be " + InQuotes(mBy) + ": give project, application, description or date");
        }
        return static_cast<std::int32_t>(found - TypeNames.begin()) + 1;
    }

    /// The form that the file's name says; empty for that in which the report is printed.
    std::string Form() const
    {
        auto form = mOut.Form({ "html", "txt", "csv", "eml" });
        for (const auto& [isGiven, option, needed] : { std::tuple(mIsText, "--text", "html"),
                 std::tuple(mIsHtml, "--html", "txt"), std::tuple(mHasNoCsv, "--no-csv", "csv") }) {
            if (isGiven && form == needed) {
                throw UsageError(
                    std::string(option) + " leaves nothing for " + InQuotes(mOut.Path()) + ": leave one of them out");
            }
        }
        return form;
    }

    void Write(const MailDraft& mail, const std::string& plainText, const std::string& form, Reply& reply) const
    {
        if (form == "eml") {
            mOut.Write(mail, plainText, reply);
        } else if (form == "csv") {
            mOut.Write(mail.attachments.front().content, reply);
        } else {
            mOut.Write(form == "html" ? TitledPage(mail) : mail.body, reply);
        }
    }

    /// The page with the mail's subject as its title.
    static std::string TitledPage(const MailDraft& mail)
    {
        constexpr std::string_view begin = "<title>";
        const auto title = mail.body.find(begin);
        const auto end = mail.body.find("</title>", title);
        if (title == std::string::npos || end == std::string::npos) {
            return mail.body;
        }
        auto page = mail.body;
        const auto text = Replace(Replace(mail.subject, "&", "&amp;"), "<", "&lt;");
        return page.replace(title + begin.size(), end - title - begin.size(), text);
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

    PeriodArguments mDays;
    std::string mBy = "application";
    bool mIsText = false;
    bool mIsHtml = false;
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
