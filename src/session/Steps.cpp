#include "session/Steps.h"

#include "host/store/ImportStep.h"
#include "session/ProductFacts.h"
#include "session/Profile.h"
#include "session/ProjectRecords.h"

namespace tempodial {

namespace {

constexpr auto Advice = ": see \"tempodial log\" for the steps there are";

}

Steps::Steps(const Profile& profile)
    : mProfile(profile)
    , mJournal(profile.Mailbox())
{
}

void Steps::Record(const std::string& command, const std::function<void()>& work)
{
    mProfile.Registry()->AllOrNothing([&] {
        mJournal.Begin(mProfile.Clock()->Now(), command, [this] { return Rules(); });
        try {
            work();
        } catch (...) {
            mJournal.Abandon();
            throw;
        }
        mJournal.End();
    });
    mJournal.NoteRulesReached();
}

void Steps::RecordImports(
    const std::string& command, const std::function<bool()>& belongs, const std::function<void()>& work)
{
    const auto rules = [this] { return Rules(); };
    const ImportStep step(mProfile.Mailbox(), mProfile.Clock()->Now(), command, rules, belongs);
    work();
}

std::vector<Step> Steps::Newest(std::int64_t most)
{
    return mJournal.Newest(StepJournal::FirstKept(mProfile.Clock()->Now()), most);
}

UndoneStep Steps::Undo(std::optional<std::int64_t> number, const std::string& command)
{
    if (mJournal.IsBarred()) {
        throw StepError("an import is going on: try again when it is over");
    }
    UndoneStep undone { Chosen(number), {} };
    if (mJournal.HasUnsaved(undone.step)) {
        throw StepError("an activity of that step is open with changes that aren't saved: save them or close its "
                        "window, and try again");
    }
    Record(command, [&] {
        undone.items = mJournal.TakeBack(undone.step, mProfile.Clock()->UniversalNow());
        TakeRulesBack(undone.step);
    });
    return undone;
}

UndoneStep Steps::Preview(std::optional<std::int64_t> number)
{
    const auto step = Chosen(number);
    return { step, mJournal.Preview(step) };
}

void Steps::Recover()
{
    const auto step = mJournal.WithRulesDue();
    if (!step) {
        return;
    }
    if (Rules() == step->rulesBefore) {
        ProjectRecords(*step->rulesAfter, mProfile.Surroundings().xml).WriteTo(*mProfile.Registry());
    }
    mJournal.NoteRulesReached();
}

std::string Steps::Rules() const
{
    return mProfile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText();
}

void Steps::TakeRulesBack(const Step& step)
{
    if (!step.rulesAfter) {
        return;
    }
    const auto& xml = mProfile.Surroundings().xml;
    ProjectRecords records(Rules(), xml);
    records.TakeBack({ *step.rulesBefore, xml }, { *step.rulesAfter, xml });
    records.WriteTo(*mProfile.Registry());
}

Step Steps::Chosen(std::optional<std::int64_t> number)
{
    const auto oldest = StepJournal::FirstKept(mProfile.Clock()->Now());
    const auto step = number ? mJournal.Find(*number) : mJournal.NewestInForce(oldest);
    if (!step && !number) {
        throw StepError(std::string("there is nothing to take back") + Advice);
    }
    if (!step || step->moment < oldest) {
        throw StepError("there is no step " + std::to_string(*number) + ", or it is older than "
            + std::to_string(StepJournal::DaysKept) + " days" + Advice);
    }
    if (step->isTakenBack) {
        throw StepError("step " + std::to_string(step->number) + " was taken back already" + Advice);
    }
    return *step;
}

}
