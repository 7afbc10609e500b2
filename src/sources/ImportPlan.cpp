#include "sources/ImportPlan.h"

#include "slots/ActivityWriter.h"
#include "slots/PlainText.h"
#include "sources/SourceProblem.h"
#include "sources/SourceReader.h"
#include "sources/WindowTimeline.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t SecondsInMinute = 60;
constexpr auto NoDescription = "(no description)";

bool IsBefore1990(Date moment)
{
    return moment < Date::FromYearMonthDay(1990, 1, 1);
}

Date DayOfSeconds(std::int64_t seconds)
{
    return Date::FromSeconds(seconds).Day();
}

void CountLines(PlannedDay& day)
{
    for (const auto& line : day.lines) {
        const bool isDetail = line.find("<Detail>") != std::string::npos;
        const bool continues = line.find("<Continuation>") != std::string::npos;
        ++(isDetail ? day.details : continues ? day.continuing : day.beginning);
    }
}

}

bool ImportPlan::IsInRange(Date day) const
{
    return (!mRange.from || day >= *mRange.from) && (!mRange.to || day <= *mRange.to);
}

bool ImportPlan::IsInQuestion(Date day) const
{
    return IsInRange(day) && !IsBefore1990(day) && day < mRange.now.Day();
}

bool ImportPlan::MayBeTaken(std::int64_t start)
{
    const auto moment = Date::FromSeconds(start);
    if (moment > mRange.now) {
        mSkipped.Add(Skipped::Future);
    } else if (IsBefore1990(moment)) {
        mSkipped.Add(Skipped::Before1990);
    } else if (moment.Day() >= mRange.now.Day()) {
        mSkipped.Add(Skipped::Today);
    } else {
        return true;
    }
    return false;
}

void ImportPlan::Take(SourceData data)
{
    mSkipped = std::move(data.skipped);
    mRemarks = std::move(data.remarks);
    TakeWindows(data);
    TakeEntries(data.entries);
    if (static_cast<std::int64_t>(mDays.size()) > MostSourceDays) {
        throw BrokenSource("the file holds more than 3660 days: import it in parts, with --from and --to");
    }
}

void ImportPlan::TakeWindows(SourceData& data)
{
    if (data.windows.empty() && data.computers.empty()) {
        return;
    }
    std::erase_if(data.windows, [this](const SeenWindow& window) {
        if (!MayBeTaken(window.begin)) {
            return true;
        }
        const auto day = DayOfSeconds(window.begin);
        if (IsInRange(day)) {
            mDays[day];
        } else {
            mSkipped.Add(Skipped::Outside);
        }
        return false;
    });
    WindowTimeline timeline(data, mViews, [this](Date day) { return IsInQuestion(day); });
    timeline.Make(mSkipped, [this](WindowTimeline::Day day) {
        if (!IsInQuestion(day.date)) {
            return;
        }
        if (day.presence > 0) {
            mDays[day.date] += (day.presence + SecondsInMinute / 2) / SecondsInMinute;
        }
        // Nothing goes on over midnight, so that a day's activities are known with it.
        auto filed = WholeActivities(std::move(day.slots));
        std::move(filed.begin(), filed.end(), std::back_inserter(mSlots));
    });
}

void ImportPlan::TakeEntries(const std::vector<SourceEntry>& entries)
{
    for (const auto& entry : entries) {
        if (!MayBeTaken(entry.start)) {
            continue;
        }
        const auto day = DayOfSeconds(entry.start);
        if (!IsInRange(day)) {
            mSkipped.Add(Skipped::Outside);
            continue;
        }
        const auto seen = entry.isWindow ? mViews.Make(entry.words) : mViews.MakeStated(entry.words);
        if (seen.kind != Seen::Kind::View) {
            mSkipped.Add(Skipped::Dropped);
            continue;
        }
        const auto project = ProjectText(entry.project);
        Words words { seen.view.program, seen.view.kind, seen.view.text, "" };
        if (words.text.empty()) {
            words.kind = words.kind < 7 ? 0 : words.kind;
            words.text = project.empty() ? NoDescription : project;
        }
        if (!mRange.withoutProjects) {
            words.project = project.empty() ? seen.view.project : project;
        }
        mDays[day] += MinutesBetween(Date::FromSeconds(entry.start), Date::FromSeconds(entry.end));
        mEntries.push_back({ entry.start, entry.end, std::move(words) });
    }
    const auto order = [](const Entry& entry) {
        return std::tie(entry.end, entry.start, entry.words.text, entry.words.project, entry.words.program);
    };
    std::stable_sort(
        mEntries.begin(), mEntries.end(), [&order](const Entry& a, const Entry& b) { return order(a) < order(b); });
    const auto same = [this](const Entry& a, const Entry& b) {
        mSkipped.Add(Skipped::Duplicate, a == b ? 1 : 0);
        if (a == b) {
            mDays[DayOfSeconds(b.start)] -= MinutesBetween(Date::FromSeconds(b.start), Date::FromSeconds(b.end));
        }
        return a == b;
    };
    mEntries.erase(std::unique(mEntries.begin(), mEntries.end(), same), mEntries.end());
}

std::optional<std::pair<Date, Date>> ImportPlan::Span() const
{
    if (mDays.empty()) {
        return std::nullopt;
    }
    return std::pair(mDays.begin()->first, mDays.rbegin()->first);
}

std::string ImportPlan::KeyOf(const Entry& entry) const
{
    const auto midnight = DayOfSeconds(entry.start).Seconds();
    return LedgerDay::EntryKey(
        entry.start - midnight, entry.end - midnight, mRange.source, entry.words.text, entry.words.project);
}

std::vector<bool> ImportPlan::WrittenBefore(const ImportLedger& ledger) const
{
    std::vector<bool> isBefore(mEntries.size());
    for (std::size_t first = 0, last = 0; first < mEntries.size(); first = last) {
        const auto [start, end, words] = mEntries[first];
        while (last < mEntries.size() && mEntries[last].start == start && mEntries[last].end == end) {
            ++last;
        }
        const auto midnight = DayOfSeconds(start).Seconds();
        auto keys = ledger.Of(DayOfSeconds(start)).EntriesAt(start - midnight, end - midnight);
        for (auto i = first; i < last; ++i) {
            isBefore[i] = keys.erase(KeyOf(mEntries[i])) > 0;
        }
        // What says something else by now, as projects and rules change, is still what was there.
        for (auto i = first; i < last && !keys.empty(); ++i) {
            if (!isBefore[i]) {
                isBefore[i] = true;
                keys.erase(keys.begin());
            }
        }
    }
    return isBefore;
}

ImportPlan::Days ImportPlan::Make(const Presence& taken, const ImportLedger& ledger) const
{
    Days days;
    std::map<Date, DayFile> files;
    for (const auto& [day, minutes] : mDays) {
        days[day].minutesPresent = minutes;
    }
    for (const auto& filed : mSlots) {
        const auto date = Date::FromSeconds(filed.midnight);
        auto& day = days[date];
        const auto index = static_cast<std::size_t>(filed.slot.start / SlotSeconds);
        if (ledger.Of(date).slots[index]) {
            ++day.before;
        } else if (taken.Within(filed.midnight + filed.slot.start, filed.midnight + filed.slot.end) > 0) {
            ++day.taken;
        } else {
            auto slot = filed.slot;
            if (mRange.withoutProjects) {
                slot.words.project.clear();
            }
            files[date].Add(slot);
            ++day.slots;
            day.minutesWritten += SlotSeconds / SecondsInMinute;
            day.written.slots.set(index);
        }
    }
    const auto isBefore = WrittenBefore(ledger);
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
        const auto& entry = mEntries[i];
        const auto date = DayOfSeconds(entry.start);
        auto& day = days[date];
        if (isBefore[i]) {
            ++day.before;
        } else if (taken.Within(entry.start, entry.end) > 0) {
            ++day.taken;
        } else {
            files[date].AddExact(entry.start - date.Seconds(), entry.end - date.Seconds(), entry.words);
            ++day.entries;
            day.minutesWritten += MinutesBetween(Date::FromSeconds(entry.start), Date::FromSeconds(entry.end));
            day.written.entries.insert(KeyOf(entry));
        }
    }
    for (auto& [date, file] : files) {
        days[date].lines = file.TakeLines();
        CountLines(days[date]);
    }
    return days;
}

}
