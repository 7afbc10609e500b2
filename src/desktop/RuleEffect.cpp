#include "desktop/RuleEffect.h"

#include "base/Text.h"
#include "desktop/DesktopStrings.h"
#include "engine/core/ProductWords.h"
#include "review/RulePreview.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// So many days are seen at once.
constexpr int SliceDays = 21;
/// Names that the lists of projects have for themselves, and what ends a project in the registry.
constexpr auto NewProjectEntry = "<New project..>";
constexpr char ProjectEnd = '|';

auto Find(const std::vector<RuledProject>& projects, const std::string& name)
{
    return std::find_if(projects.begin(), projects.end(),
        [&name](const RuledProject& project) { return EqualIgnoringCase(project.name, name); });
}

bool IsRefusedName(const std::string& name)
{
    return name == NoProject || name == NewProjectEntry || name.find(ProjectEnd) != std::string::npos;
}

std::string OnesText(std::int64_t count, const char* one, const char* several)
{
    return std::to_string(count) + (count == 1 ? one : several);
}

std::int64_t MinutesOf(const ProjectMoves& moves)
{
    std::int64_t minutes = 0;
    for (const auto& move : moves.LargestFirst()) {
        minutes += move.minutes;
    }
    return minutes;
}

}

RuleEffect::RuleEffect(RuleEdit edit, std::vector<RuledProject> kept, std::set<std::int64_t> open, Date today)
    : mEdit(std::move(edit))
    , mOpen(std::move(open))
    , mTrial(Edited(kept, mEdit))
    , mIsDone(mEdit.days == 0)
{
    const auto known = Find(kept, mEdit.project);
    mIsRefused = mEdit.isChanged && (mEdit.precedence.empty() || (known == kept.end() && IsRefusedName(mEdit.project)));
    mLosesPeople = mEdit.isChanged && known != kept.end() && !known->peopleRule.empty();
    mIsDone |= mIsRefused;
    const auto most = DaysBetween(Period::Always().first, today) + 1;
    mLeft = { today.Day().AddDays(1 - std::min(mEdit.days, most)), today.Day() };
}

std::vector<RuledProject> RuleEffect::Edited(std::vector<RuledProject> kept, const RuleEdit& edit)
{
    if (edit.isChanged) {
        if (const auto known = Find(kept, edit.project); known != kept.end()) {
            kept.erase(known);
        }
        // The form knows no rule for people, and keeps none.
        kept.push_back({ .name = edit.project,
            .precedence = edit.precedence,
            .subjectRule = edit.subjectRule,
            .notSubjectRule = edit.notSubjectRule,
            .peopleRule = "" });
        RuledProject::Sort(kept);
    }
    return kept;
}

void RuleEffect::GoOn(const Source& source)
{
    if (mIsDone) {
        return;
    }
    const auto last = source.lastStartBefore(mLeft.last.AddDays(1));
    if (!last || *last < mLeft.first) {
        mIsDone = true;
        return;
    }
    const auto from = std::max(last->Day().AddDays(1 - SliceDays), mLeft.first);
    auto activities = source.read({ from, last->Day() });
    std::reverse(activities.begin(), activities.end());
    See(activities);
    if (from == mLeft.first) {
        mIsDone = true;
    } else {
        mLeft.last = from.AddDays(-1);
    }
}

void RuleEffect::See(const std::vector<Activity>& activities)
{
    const auto* project = mTrial.Named(mEdit.project);
    if (project == nullptr) {
        return;
    }
    const auto preview = RulePreview::OfOne(mTrial, project->name, activities);
    std::set<std::int64_t> targets;
    for (const auto& target : preview.targets) {
        targets.insert(target.activity);
    }
    for (const auto& activity : activities) {
        const FoldedText subject(RuledSubject(activity));
        const FoldedText people(activity.people);
        if (targets.count(activity.number) == 0) {
            mUnmatched += activity.project == project->name && !RuleTrial::IsMatch(*project, subject, people) ? 1 : 0;
        } else if (mOpen.count(activity.number) > 0) {
            ++mKeptOpen;
        } else {
            mChanges.push_back(activity);
            mMoves.Add(ProjectNameOf(activity), project->name, activity.duration);
            if (const auto* first = mTrial.First(subject, people); first != project) {
                mDisputed.Add(first->name, project->name, activity.duration);
            }
        }
    }
}

std::string RuleEffect::DaysText() const
{
    return mEdit.days == 1 ? "today" : "the last " + std::to_string(mEdit.days) + " days";
}

std::string RuleEffect::Title() const
{
    if (mIsRefused) {
        return mEdit.precedence.empty() ? "This can't be saved: choose a precedence from its list."
                                        : "This can't be saved: choose another name for the project.";
    }
    if (mEdit.days == 0) {
        return "Nothing past is changed: put a number of days to see what applying it back would change.";
    }
    const auto count = ActivitiesText(static_cast<std::int64_t>(mChanges.size()));
    const auto changes = mChanges.empty() ? "no activity" : count + PartSeparator + LengthText(MinutesOf(mMoves));
    return (mEdit.isAppliedBack ? "Saving changes, in " + DaysText() + ": "
                                : "Saving changes new activities only. Applied back to " + DaysText() + ": ")
        + changes + (mIsDone ? "" : ", so far");
}

std::vector<std::string> RuleEffect::Notes() const
{
    std::vector<std::string> notes;
    std::int64_t overwritten = 0;
    for (const auto& move : mMoves.LargestFirst()) {
        overwritten += move.from == NoProject ? 0 : move.activities;
    }
    if (overwritten > 0) {
        notes.push_back(OnesText(overwritten, " of these has another project now, which it loses.",
            " of these have another project now, which they lose."));
    }
    for (const auto& move : mDisputed.LargestFirst()) {
        notes.push_back(std::to_string(move.activities) + " of these would go to " + move.from
            + " by the rules, which is tried first.");
    }
    if (mUnmatched > 0) {
        notes.push_back(OnesText(mUnmatched, " activity is no longer matched, and keeps ",
                            " activities are no longer matched, and keep ")
            + mEdit.project + ".");
    }
    if (mKeptOpen > 0) {
        notes.push_back(OnesText(mKeptOpen, " more is open in a window of its own, and stays as it is.",
            " more are open in windows of their own, and stay as they are."));
    }
    if (mLosesPeople) {
        notes.emplace_back("The project has a rule for people; saving here takes it away.");
    }
    return notes;
}

}
