#include "desktop/qt/AgendaContents.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/DragGesture.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "review/ActivityReader.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr int HoursOfDay = 24;
/// The minutes that a day's bar stands for, unless a day is longer.
constexpr std::int64_t BarMinutes = 600;

QString IsolatedText(const std::string& text)
{
    return ShownLine(text);
}

}

void AgendaContents::Fill()
{
    FillHours();
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    mCards.clear();
    for (const auto& activity : mLog.Activities()) {
        AgendaCard card;
        card.title = IsolatedText(words.Title(activity));
        card.detail = IsolatedText(words.Detail(activity, mLog.ColouredBy()));
        card.times = ToQt(words.Times(activity));
        card.style = mDesk.StyleOf(mLog.ColouredBy(), mLog.ColourNameOf(activity));
        card.style.isDashed = IsUnassigned(activity);
        card.isSelected = mSelected.count(activity.number) > 0;
        card.isFaded = IsFaded(activity);
        card.isSoft = DragGesture::MayGrow(activity.end, mDesk.Now());
        mCards.push_back(std::move(card));
    }
}

void AgendaContents::FollowClock()
{
    FillHours();
    for (std::size_t i = 0; i < mCards.size(); ++i) {
        mCards[i].isSoft = DragGesture::MayGrow(mLog.Activities()[i].end, mDesk.Now());
    }
}

void AgendaContents::Clear()
{
    mCards.clear();
    mLabels.clear();
    mGaps.clear();
}

void AgendaContents::FillHours()
{
    const auto& formats = mDesk.Formats();
    mHourNames.clear();
    for (int hour = 0; hour < HoursOfDay; ++hour) {
        mHourNames.push_back(ToQt(formats->ShortTime(mLog.Days().first.AddMinutes(std::int64_t { hour } * 60))));
    }
    mHourNames.push_back(ToQt(formats->ShortTime(mDesk.Now())));
}

void AgendaContents::FillPlaced(const AgendaScene& scene)
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    mLabels.clear();
    for (const auto& run : scene.Runs()) {
        std::vector<Activity> activities;
        for (auto i = run.pieces.begin; i < run.pieces.end; ++i) {
            activities.push_back(scene.ActivityOf(scene.Layout().Pieces()[i]));
        }
        mLabels.push_back(IsolatedText(words.ShortLabel(activities)));
    }
    mGaps.clear();
    for (const auto& gap : scene.Gaps()) {
        const bool isTold = ShowsLengthOf(gap, scene.Scale(), scene.Layout().Days());
        mGaps.push_back(isTold ? ToQt(GapText(gap.minutes)) : QString());
    }
}

void AgendaContents::Select(const Numbers& numbers)
{
    mSelected = numbers;
    for (std::size_t i = 0; i < mCards.size(); ++i) {
        mCards[i].isSelected = mSelected.count(mLog.Activities()[i].number) > 0;
    }
}

void AgendaContents::ShowOnly(const Names& names)
{
    mOnly = names;
    for (std::size_t i = 0; i < mCards.size(); ++i) {
        mCards[i].isFaded = IsFaded(mLog.Activities()[i]);
    }
}

bool AgendaContents::IsFaded(const Activity& activity) const
{
    return !mOnly.empty() && mOnly.count(mLog.ColourNameOf(activity)) == 0;
}

std::vector<DayHead::Day> AgendaContents::Heads(const AgendaScene& scene) const
{
    std::vector<DayHead::Day> days;
    const auto hours = mDesk.Hours();
    for (int day = 0; day < mLog.DayCount(); ++day) {
        const auto date = mLog.Days().first.AddDays(day);
        const auto minutes = mLog.Sums().minutes[static_cast<std::size_t>(day)];
        const auto column = scene.Geometry().Column(day);
        DayHead::Day head;
        head.number = QString::number(date.ToParts().day);
        head.name = ToQt(WeekdayText(date.Weekday()));
        head.total = minutes == 0 ? QString() : ToQt(LengthText(minutes));
        head.spoken = ToQt(mDesk.Formats()->LongDate(date) + PartSeparator + LengthText(minutes));
        head.bar = BarOf(static_cast<std::size_t>(day));
        head.isToday = date == mDesk.Now().Day();
        head.isQuiet = hours.HoursOf(date).Seconds() == 0;
        head.left = column.left;
        head.width = column.width;
        days.push_back(std::move(head));
    }
    return days;
}

StackedBar AgendaContents::BarOf(std::size_t day) const
{
    const auto& sums = mLog.Sums();
    StackedBar bar;
    bar.track = ToQt(mDesk.Look().Colours().track);
    bar.scale = std::max(BarMinutes, *std::max_element(sums.minutes.begin(), sums.minutes.end()));
    for (const auto& row : sums.rows) {
        const auto style = mDesk.StyleOf(mLog.ColouredBy(), row.name);
        bar.parts.push_back({ MarkBrush(style), row.minutes[day], style.isHatched });
    }
    return bar;
}

QString AgendaContents::LineOf(const Activity& activity) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    return IsolatedText(words.Title(activity)) + ToQt(PartSeparator + words.Times(activity) + PartSeparator)
        + IsolatedText(words.Detail(activity, Coloured::Project));
}

std::string AgendaContents::SubjectOf(const Activity& activity) const
{
    const auto bracket = "[" + ProjectNameOf(activity) + "] ";
    if (mDesk.ShownTitles() == Titles::Hidden) {
        return bracket + activity.type;
    }
    try {
        if (auto subject = SubjectNumbered(mDesk.Profile(), activity.number); !subject.empty()) {
            return subject;
        }
    } catch (const Failure&) {
        // Whoever asks for a tip isn't told of a mailbox that can't be read; what is done next tells.
    }
    return bracket + RuledSubject(activity);
}

QString AgendaContents::ToolTipOf(const Activity& activity) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    return IsolatedText(SubjectOf(activity)) + "\n" + IsolatedText(words.Detail(activity, Coloured::Project)) + "\n"
        + ToQt(words.Times(activity) + PartSeparator + LengthText(activity.duration));
}

QString AgendaContents::SpokenOf(const Activity& activity) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    return IsolatedText(words.Spoken(activity));
}

QString AgendaContents::DescribedOf(const Activity& activity) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    const auto described = IsolatedText(words.Described(activity));
    return DragGesture::MayGrow(activity.end, mDesk.Now()) ? described + ", " + NotFinalText : described;
}

QString AgendaContents::DescribedDay(int day) const
{
    QStringList parts;
    if (mLog.Days().first.AddDays(day) == mDesk.Now().Day()) {
        parts.append("today");
    }
    for (const auto& row : mLog.Sums().rows) {
        if (const auto minutes = row.minutes[static_cast<std::size_t>(day)]; minutes > 0) {
            parts.append(IsolatedText(row.name) + " " + ToQt(LengthText(minutes)));
        }
    }
    return parts.join(", ");
}

QString AgendaContents::WordsOf(const TimeSpan& times, Date endBefore) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    Activity shown;
    shown.start = times.start;
    shown.end = times.end;
    shown.duration = MinutesBetween(times.start, times.end);
    auto text = words.Summary(shown, mLog.Days());
    if (DragGesture::MayGrow(endBefore, mDesk.Now())) {
        text += PartSeparator + std::string(MayGrowText);
    }
    return ToQt(text);
}

}
