#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Correction.h"
#include "cli/GivenProject.h"
#include "cli/ProjectNames.h"
#include "host/store/ActivityRows.h"
#include "host/system/HostClock.h"
#include "review/ActivityReader.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace tempodial {

namespace {

class AssignCommand final : public Command
{
public:
    AssignCommand()
        : Command({ "assign", "Set a project on single activities or a span of time",
            "Sets the project on the activities of those numbers, or on those that start in\n"
            "the span, --from included and --to not, whatever the rules say. A project that\n"
            "doesn't exist yet is made. Activities that have a project keep it, unless\n"
            "--overwrite is given; \"No Project\" takes it from them.\n"
            "A time HH:MM is of today.\n"
            "\n"
            "  tempodial assign Riverside @12 @13\n"
            "  tempodial assign Riverside --from 2006-10-10T09:00 --to 2006-10-10T12:30\n"
            "  tempodial assign \"No Project\" --from 09:00 --to 12:30 --overwrite" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("NAME", mName, "The project");
        arguments.Rest("@N", mNumbers, "The activities");
        arguments.Optional("--from TIME", mFrom, "The beginning: YYYY-MM-DDTHH:MM or HH:MM");
        arguments.Optional("--to TIME", mTo, "The end, no longer included: YYYY-MM-DDTHH:MM or HH:MM");
        arguments.Flag("--touching", mIsTouching, "Also take what only overlaps the span");
        arguments.Flag("--overwrite", mOverwrite, "Also change activities that have a project");
    }

    Reply Run(const Options& options) override
    {
        RequireProjectName(mName);
        const auto numbers = Correction::Numbers(mNumbers);
        const auto today = HostClock(options.now).Now().Day();
        const auto span = numbers.empty() ? std::optional(Span(today)) : std::nullopt;
        if (!span && (mFrom || mTo || mIsTouching)) {
            throw UsageError("activities and a span can't both be given: leave out --from, --to and --touching, or "
                + mNumbers.front());
        }
        Correction correction(options);
        const auto activities = span ? std::vector<Ref<StoreItem>>() : correction.Activities(numbers);
        const GivenProject project(correction.AddIn(), mName);
        const auto workLog = WorkLogOf(correction.Run().Profile());
        const ActivityRows rows(correction.Run().Profile().Mailbox(), workLog, ActivityClass);
        std::vector<ActivityRow> former;
        for (const auto& activity : activities) {
            former.push_back(rows.Numbered(activity->Number()).value());
        }
        if (span) {
            former = mIsTouching ? rows.Overlapping(span->from, span->to) : rows.StartingIn(span->from, span->to);
        }
        correction.Run().AsStep(
            [&] { correction.Choosing(true, [&] { Assign(correction, project.Name(), span, activities, former); }); });
        Reply noted;
        project.NoteIfAdded(noted);
        std::size_t changed = 0;
        std::size_t kept = 0;
        for (const auto& row : former) {
            if (const auto now = rows.Numbered(row.number); now && now->project != row.project) {
                ++changed;
            } else if (now && Fold(now->project) != Fold(project.Name())) {
                ++kept;
            }
        }
        auto reply = correction.Run().ConcludedWithChanges(changed);
        reply.notes = std::move(noted.notes);
        if (kept > 0 && !mOverwrite && (changed == 0 || !span)) {
            reply.remarks.push_back(std::to_string(kept)
                + (kept == 1 ? " activity keeps the project that it has"
                             : " activities keep the projects that they have")
                + ": give --overwrite to change that, too");
        }
        return reply;
    }

private:
    struct Moments
    {
        Date from;
        Date to;
    };

    Moments Span(Date today) const
    {
        if (mFrom.has_value() != mTo.has_value()) {
            throw UsageError(std::string(mFrom ? "--to" : "--from") + " is required: give both ends of the span");
        }
        if (!mFrom) {
            throw UsageError("no activities are named: give their numbers, such as @12, or --from and --to");
        }
        const Moments span { ToMomentOn(today, "--from", *mFrom), ToMomentOn(today, "--to", *mTo) };
        if (span.from >= span.to) {
            throw UsageError(
                "--from " + *mFrom + " isn't earlier than --to " + *mTo + ": give the earlier moment as --from");
        }
        return span;
    }

    void Assign(const Correction& correction, const std::string& project, const std::optional<Moments>& span,
        const std::vector<Ref<StoreItem>>& activities, const std::vector<ActivityRow>& rows) const
    {
        auto& addIn = correction.AddIn();
        if (span && !mIsTouching) {
            addIn.SetProjectForItems(project, false, true, span->from, span->to, mOverwrite);
            return;
        }
        std::vector<Ref<OutlookItem>> selected(activities.begin(), activities.end());
        if (span) {
            for (const auto& row : rows) {
                selected.emplace_back(ItemNumbered(correction.Run().Profile(), row.number));
            }
        }
        correction.Run().Select(std::move(selected));
        addIn.SetProjectForItems(project, true, false, {}, {}, mOverwrite);
    }

    std::string mName;
    std::vector<std::string> mNumbers;
    std::optional<std::string> mFrom;
    std::optional<std::string> mTo;
    bool mIsTouching = false;
    bool mOverwrite = false;
};

}

std::unique_ptr<Command> MakeAssignCommand()
{
    return std::make_unique<AssignCommand>();
}

}
