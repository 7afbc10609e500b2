#include "cli/ChangesReply.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/Interruption.h"
#include "cli/KnownProject.h"
#include "cli/PeriodArguments.h"
#include "cli/ProjectChanges.h"
#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

class ApplyCommand final : public Command
{
public:
    ApplyCommand()
        : Command({ "apply", "Give past activities the project that the rules give",
            "With NAME it goes over today's activities and those of the days before. Those\n"
            "that the project's rules match get the project, also when they have another one\n"
            "already, or if it was set by hand. Activities that belong to another project by\n"
            "precedence are named.\n"
            "\n"
            "With --all every activity of the range gets the project that is tried first and\n"
            "matches, as in an import; one that no rule matches, or whose project was set by\n"
            "hand, keeps it. "
                + PeriodArguments::HelpWith("the last seven days")
                + "\n"
                  "--preview shows what would change, and changes nothing. Ctrl-C stops it.\n"
                  "\n"
                  "  tempodial apply Riverside\n"
                  "  tempodial apply Riverside --days 21 --preview\n"
                  "  tempodial apply --all last-week --only-unassigned" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("NAME", mName, "The project, unless --all is given");
        mPeriod.Declare(arguments);
        arguments.Optional("--days N", mDays, "With NAME: how many days, today being the last; default 7");
        arguments.Flag("--all", mIsAll, "All projects, by precedence");
        arguments.Flag("--only-unassigned", mIsOnlyUnassigned, "With --all: only activities without a project");
        arguments.Flag("--preview", mIsPreview, "Show what would change, and change nothing");
    }

    Reply Run(const Options& options) override { return mIsAll ? ApplyAll(options) : ApplyOne(options); }

private:
    Reply ApplyOne(const Options& options) const
    {
        constexpr std::int32_t MostDays = 100'000;
        if (!mName) {
            throw UsageError("NAME is required: give a project, or --all");
        }
        if (mPeriod.IsGiven() || mIsOnlyUnassigned) {
            throw UsageError(std::string(mIsOnlyUnassigned ? "--only-unassigned" : "a range of days")
                + " goes with --all: leave it out, or give --all in place of NAME");
        }
        const auto days = ToCount("--days", mDays.value_or(std::to_string(ApplyBackDays)), 1, MostDays);
        const Interruption interruption;
        if (mIsPreview) {
            const auto profile = ReadProfile(options);
            if (const auto known = KnownProject::Find(profile, *mName)) {
                return PreviewReply(PreviewOfOne(profile, known->name, DaysBack(profile, days), options));
            }
        }
        // A project may be one of those that come with the add-in's first run.
        ConnectedRun run(options);
        const auto name = KnownProject::NameOf(run.AddIn(), *mName);
        const auto span = DaysBack(run.Profile(), days);
        const auto preview = PreviewOfOne(run.Profile(), name, span, options);
        if (mIsPreview) {
            return run.Concluded(PreviewReply(preview));
        }
        const ProjectChanges changes(run.Profile(), span);
        if (!Interruption::IsRequested()) {
            run.AsStep([&] { run.AddIn().ApplyProject(name, days); });
        }
        return Changed(run, changes, 0);
    }

    Reply ApplyAll(const Options& options)
    {
        if (mDays) {
            throw UsageError("--days goes with NAME: give a range of days, such as -7d");
        }
        if (mName) {
            mPeriod.Take(*mName);
        }
        const auto span = mPeriod.Days(options, "-7d");
        const Interruption interruption;
        if (mIsPreview) {
            return PreviewReply(PreviewOfAll(ReadProfile(options), span));
        }
        ConnectedRun run(options);
        const auto preview = PreviewOfAll(run.Profile(), span);
        const ProjectChanges changes(run.Profile(), span);
        run.AsStep([&] {
            for (const auto& [activity, project] : preview.targets) {
                if (Interruption::IsRequested()) {
                    break;
                }
                Apply(run, activity, project);
            }
        });
        return Changed(run, changes, preview.keptByHand);
    }

    static Period DaysBack(const Profile& profile, std::int32_t days)
    {
        const auto today = profile.Surroundings().clock->Now().Day();
        return { today.AddDays(1 - days), today };
    }

    static RulePreview PreviewOfOne(
        const Profile& profile, const std::string& name, const Period& span, const Options& options)
    {
        const RuleTrial trial(RuledProject::ReadAll(profile));
        auto preview = RulePreview::OfOne(trial, name, ActivitiesStartingIn(profile, span));
        TellDisputed(preview, options);
        return preview;
    }

    RulePreview PreviewOfAll(const Profile& profile, const Period& span) const
    {
        const RuleTrial trial(RuledProject::ReadAll(profile));
        return RulePreview::OfAll(trial, ActivitiesStartingIn(profile, span), mIsOnlyUnassigned);
    }

    static void Apply(const ConnectedRun& run, std::int64_t activity, const std::string& project)
    {
        const Ref<AppointmentItem> item = ItemNumbered(run.Profile(), activity);
        if (run.AddIn().ApplyProjectToItem(project, item)) {
            item->Save();
            item->Close(CloseMode::Discard);
        }
    }

    static Reply Changed(ConnectedRun& run, const ProjectChanges& changes, std::int64_t keptByHand)
    {
        const auto moves = changes.Moves();
        Reply reply { .document = ChangesJson(moves, keptByHand) };
        reply.summary = ChangesSum(moves.Activities(), keptByHand);
        return run.Concluded(std::move(reply));
    }

    std::optional<std::string> mName;
    PeriodArguments mPeriod;
    std::optional<std::string> mDays;
    bool mIsAll = false;
    bool mIsOnlyUnassigned = false;
    bool mIsPreview = false;
};

}

std::unique_ptr<Command> MakeApplyCommand()
{
    return std::make_unique<ApplyCommand>();
}

}
