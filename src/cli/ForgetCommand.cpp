#include "base/Failure.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/Confirmation.h"
#include "cli/PeriodArguments.h"
#include "cli/ProjectNames.h"
#include "host/store/MailboxTrouble.h"
#include "session/Forgetting.h"
#include "session/OpenProfile.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

class ForgetCommand final : public Command
{
public:
    ForgetCommand()
        : Command({ "forget", "Remove activities for good, and every trace of them",
            "Removes the activities that meet all that is given, the tracker's lines that they\n"
            "came from, and the steps and the lines of the trace that hold them. \"undo\" doesn't\n"
            "bring them back, and no sync does. --match looks into subjects, people, texts\n"
            "and the tracker's lines, whatever the case of the letters; --project takes the\n"
            "project out of the list as well, once no activity of it is left. It asks\n"
            "first; --preview only counts. Backups, and other files that you have written,\n"
            "stay as they are.\n"
            "\n"
            "  tempodial forget --match \"job offer\" --preview\n"
            "  tempodial forget --project Riverside --yes\n"
            "  tempodial forget --before 2006-01-01" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--match TEXT", mMatch, "Activities that hold this text");
        arguments.Optional("--project NAME", mProject, "Activities of that project, or of \"No Project\"");
        arguments.Optional("--before DAY", mBefore, "Activities that started before that day");
        arguments.Flag("--preview", mIsPreview, "Only tell how much would be forgotten");
        arguments.Flag("--yes", mIsConfirmed, "Don't ask");
    }

    Reply Run(const Options& options) override
    {
        const auto criteria = Criteria(options);
        const Confirmation confirmation(mIsConfirmed);
        if (!mIsPreview) {
            confirmation.RequirePossible();
        }
        const auto profile = OpenProfile(options);
        if (criteria.project) {
            RequireKnownProject(profile, *criteria.project);
        }
        Forgetting forgetting(profile);
        const auto counts = forgetting.Find(criteria);
        RequireNoTrouble(profile.Mailbox());
        if (!mIsPreview) {
            if (!confirmation.Has("Forget " + Text(counts) + " for good?")) {
                throw CommandError("nothing was forgotten: answer y to forget it");
            }
            Forget(forgetting);
        }
        Reply reply;
        reply.document = { { "activities", counts.activities }, { "lines", counts.lines }, { "steps", counts.steps },
            { "traceLines", counts.traceLines } };
        reply.summary = (mIsPreview ? "Would forget " : "Forgotten: ") + Text(counts) + "\n";
        return reply;
    }

private:
    ForgetCriteria Criteria(const Options& options) const
    {
        if (!mMatch && !mProject && !mBefore) {
            throw UsageError("forget needs to know what: give --match, --project or --before, or several of them");
        }
        if (mMatch && mMatch->find_first_not_of(" \t\r\n") == std::string::npos) {
            throw UsageError("--match can't be blank: give a text that stands in what is to be forgotten");
        }
        if (mProject) {
            RequireProjectName(*mProject);
        }
        const auto before
            = mBefore ? std::optional(PeriodArguments::ToPeriod("--before", *mBefore, options).first) : std::nullopt;
        return { mMatch, mProject, before };
    }

    static void Forget(Forgetting& forgetting)
    {
        try {
            forgetting.Forget();
        } catch (const ForgetError& error) {
            throw CommandError(error.what());
        }
    }

    static std::string Text(const ForgetCounts& counts)
    {
        const auto counted = [](std::size_t count, const std::string& one, const std::string& several) {
            return std::to_string(count) + " " + (count == 1 ? one : several);
        };
        return counted(counts.activities, "activity", "activities") + ", " + counted(counts.lines, "line", "lines")
            + " of the tracker, " + counted(counts.steps, "step", "steps") + " and "
            + counted(counts.traceLines, "line", "lines") + " of the trace";
    }

    std::optional<std::string> mMatch;
    std::optional<std::string> mProject;
    std::optional<std::string> mBefore;
    bool mIsPreview = false;
    bool mIsConfirmed = false;
};

}

std::unique_ptr<Command> MakeForgetCommand()
{
    return std::make_unique<ForgetCommand>();
}

}
