#include "session/ForgetSearch.h"

#include "base/Text.h"
#include "engine/core/ProjectFacts.h"
#include "host/store/LineMemory.h"
#include "session/ProductFacts.h"
#include "session/ProjectRecords.h"
#include "session/TrackerDay.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tempodial {

namespace {

/// Texts of an activity that are shorter stand in too many lines that are about something else.
constexpr std::size_t ShortestText = 3;

const std::string& ProjectOf(const ActivityState& state)
{
    static const std::string none = NoProject;
    return state.project.empty() ? none : state.project;
}

std::string WithoutQuotes(const std::string& text)
{
    const bool isQuoted = text.size() > 2 && text.front() == '"' && text.back() == '"';
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

}

ForgetSearch::ForgetSearch(const Profile& profile, const ForgetJournal& journal, const ForgetCriteria& criteria)
    : mProfile(profile)
    , mJournal(journal)
    , mCriteria(criteria)
    , mMatch(Fold(criteria.match.value_or("")))
    , mFiles(DataFile::In(profile.DataFolder()))
{
    ReadLines();
    LookAtStates();
    LookAtProject();
    LookAtSteps();
    LookAtLines();
    LookAtTexts();
}

void ForgetSearch::ReadLines()
{
    for (std::size_t i = 0; i < mFiles.size(); ++i) {
        const auto& file = mFiles[i];
        if (file.dayKey.empty()) {
            continue;
        }
        LineMemory memory(mProfile.Mailbox());
        memory.BeginDay(file.dayKey, 0);
        const auto lines = file.Lines();
        for (std::size_t number = 1; number < lines.size(); ++number) {
            if (IsBlank(lines[number])) {
                continue;
            }
            Line line { .file = i, .number = number, .text = lines[number], .slot = SlotTexts::Of(lines[number]) };
            line.isReached = memory.IsKnown(line.text) || file.isFinished;
            line.isMatch = mCriteria.match && SlotTexts::Holds(line.text, mMatch);
            mLines[file.dayKey].push_back(std::move(line));
        }
    }
}

void ForgetSearch::LookAtStates()
{
    mJournal.EachState(ActivityClass, [this](const ActivityState& state) { Take(state); });
    mOrder.items.assign(mItems.begin(), mItems.end());
    std::sort(mOrder.items.begin(), mOrder.items.end());
    // An activity that was deleted before is forgotten too, but isn't counted: nobody sees it any more.
    mCounts.activities = static_cast<std::size_t>(
        std::count_if(mItems.begin(), mItems.end(), [this](std::int64_t item) { return mPresent.contains(item); }));
}

void ForgetSearch::Take(const ActivityState& state)
{
    if (!state.step) {
        mPresent.insert(state.number);
    }
    const bool isGone = state.step && !mPresent.contains(state.number);
    const bool meets = Meets(state);
    if (meets && (!state.step || isGone)) {
        mItems.insert(state.number);
    }
    const bool isForgotten = mItems.contains(state.number);
    if (state.step && (meets || isForgotten)) {
        mSteps.insert(*state.step);
    }
    if (isForgotten) {
        mSpans[state.start.DayKey()].emplace_back(state.start, state.end);
        if (state.end.DayKey() != state.start.DayKey()) {
            mSpans[state.end.DayKey()].emplace_back(state.start, state.end);
        }
        AddTexts(state);
    } else if (!state.step && mCriteria.project && EqualIgnoringCase(ProjectOf(state), *mCriteria.project)) {
        mIsProjectLeft = true;
    }
}

bool ForgetSearch::Meets(const ActivityState& state) const
{
    if (mCriteria.project && !EqualIgnoringCase(ProjectOf(state), *mCriteria.project)) {
        return false;
    }
    if (mCriteria.before && state.start >= *mCriteria.before) {
        return false;
    }
    if (!mCriteria.match) {
        return true;
    }
    const std::array texts { &state.subject, &state.body, &state.description, &state.people };
    return std::any_of(texts.begin(), texts.end(), [this](const auto* text) { return HoldsMatch(*text); })
        || HasMatchingLine(state);
}

bool ForgetSearch::HasMatchingLine(const ActivityState& state) const
{
    const auto day = state.start.DayKey();
    const auto found = mLines.find(day);
    return found != mLines.end() && std::any_of(found->second.begin(), found->second.end(), [&](const Line& line) {
        return line.isMatch && line.isReached && Touches(day, line, { state.start, state.end });
    });
}

void ForgetSearch::LookAtLines()
{
    for (const auto& [day, lines] : mLines) {
        const auto position = mJournal.Position(day);
        for (const auto& line : lines) {
            if (!MeetsByItself(day, line) && !IsOfForgotten(day, line)) {
                continue;
            }
            auto& gone = mOrder.lines[day];
            gone.texts.push_back(line.text);
            if (line.isReached) {
                gone.reached.push_back(line.text);
            }
            const bool isLive = mFiles[line.file].name == TrackerFileName(day);
            gone.beforePosition += isLive && static_cast<std::int64_t>(line.number) <= position ? 1 : 0;
            ++mCounts.lines;
            for (const auto& text : line.slot.texts) {
                if (text.size() >= ShortestText) {
                    mTexts.Add(text);
                }
            }
        }
    }
}

bool ForgetSearch::MeetsByItself(const std::string& dayKey, const Line& line) const
{
    return (!mCriteria.match || line.isMatch) && (!mCriteria.before || DayOfKey(dayKey) < *mCriteria.before)
        && (!mCriteria.project || EqualIgnoringCase(line.slot.project, *mCriteria.project));
}

bool ForgetSearch::IsOfForgotten(const std::string& dayKey, const Line& line) const
{
    const auto found = mSpans.find(dayKey);
    return line.isReached && found != mSpans.end()
        && std::any_of(
            found->second.begin(), found->second.end(), [&](const Span& span) { return Touches(dayKey, line, span); });
}

bool ForgetSearch::Touches(const std::string& dayKey, const Line& line, const Span& span)
{
    const auto day = DayOfKey(dayKey);
    const auto start = day.AddSeconds(line.slot.start);
    const auto end = day.AddSeconds(line.slot.end);
    const bool isMoment = start >= end;
    return isMoment ? end >= span.first && end <= span.second : start < span.second && end > span.first;
}

void ForgetSearch::LookAtProject()
{
    const bool goes = mCriteria.project && !mIsProjectLeft && !EqualIgnoringCase(*mCriteria.project, NoProject);
    if (goes) {
        mOrder.project = *mCriteria.project;
        mTexts.Add(*mCriteria.project);
    }
}

void ForgetSearch::LookAtSteps()
{
    const auto& xml = mProfile.Surroundings().xml;
    const auto without = [&](const std::optional<std::string>& rules) {
        if (!rules || mOrder.project.empty()) {
            return rules;
        }
        ProjectRecords records(*rules, xml);
        if (!records.Has(mOrder.project)) {
            return rules;
        }
        records.Remove(mOrder.project);
        return std::optional(records.Text());
    };
    for (const auto& step : mJournal.Steps()) {
        const bool isMeant = !mCriteria.before || step.moment < *mCriteria.before;
        const bool isOfProject
            = !mOrder.project.empty() && Fold(step.command).find(Fold(mOrder.project)) != std::string::npos;
        const bool isOfMatch = mCriteria.match && !mCriteria.project && isMeant
            && (HoldsMatch(step.command) || HoldsMatch(step.rulesBefore.value_or(""))
                || HoldsMatch(step.rulesAfter.value_or("")));
        const ForgetOrder::Rules rules { step.number, without(step.rulesBefore), without(step.rulesAfter) };
        const bool isEmpty = step.items == 0 && step.rulesAfter && rules.before == rules.after;
        if (isOfProject || isOfMatch || isEmpty) {
            mSteps.insert(step.number);
        } else if (rules.before != step.rulesBefore || rules.after != step.rulesAfter) {
            mOrder.rules.push_back(rules);
        }
    }
    mOrder.steps.assign(mSteps.begin(), mSteps.end());
    std::sort(mOrder.steps.begin(), mOrder.steps.end());
    mCounts.steps = mOrder.steps.size();
}

void ForgetSearch::LookAtTexts()
{
    mTexts.Add(mMatch);
    mOrder.texts = mTexts.Texts();
    for (const auto& file : mFiles) {
        if (file.name == TraceFileName || file.name == OlderTraceFileName) {
            const auto lines = file.Lines();
            mCounts.traceLines += static_cast<std::size_t>(std::count_if(
                lines.begin(), lines.end(), [this](const std::string& line) { return mTexts.Finds(line); }));
        }
    }
    auto& drafts = mProfile.Mailbox()->Drafts();
    for (const auto row : drafts.All()) {
        const auto draft = drafts.Get(row);
        bool isFound = mTexts.Finds(draft.subject) || mTexts.Finds(draft.body);
        for (const auto& attachment : draft.attachments) {
            isFound = isFound || mTexts.Finds(attachment.content);
        }
        if (isFound) {
            mOrder.drafts.push_back(row);
        }
    }
}

void ForgetSearch::AddTexts(const ActivityState& state)
{
    for (const auto& text : { state.subject, WithoutQuotes(state.description), state.people }) {
        if (text.size() >= ShortestText) {
            mTexts.Add(text);
        }
    }
}

bool ForgetSearch::HoldsMatch(const std::string& text) const
{
    return Fold(text).find(mMatch) != std::string::npos;
}

}
