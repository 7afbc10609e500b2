#include "desktop/ActivityTable.h"

#include "base/IsoDate.h"
#include "base/Text.h"
#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "review/CsvField.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

constexpr auto CsvHeader = "start,end,duration,project,application,description,people";

/// A text in which nothing parts lines and columns.
std::string Plain(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char sign) { return static_cast<unsigned char>(sign) < ' '; }, ' ');
    return text;
}

}

ActivityTable::ActivityTable(const Ref<LocaleFormats>& formats, Titles titles, std::vector<Activity> activities)
    : mFormats(formats)
    , mTitles(titles)
    , mActivities(std::move(activities))
{
}

std::string ActivityTable::DescriptionOf(const Activity& activity) const
{
    return mTitles == Titles::Shown ? activity.description : std::string();
}

std::vector<ActivityTable::Line> ActivityTable::Lines() const
{
    const ActivityWords words(mFormats, mTitles);
    std::vector<Line> lines;
    for (const auto& activity : mActivities) {
        lines.push_back({ .day = mFormats->ShortDate(activity.start),
            .times = words.Times(activity),
            .length = LengthText(activity.duration),
            .project = ProjectNameOf(activity),
            .application = activity.type,
            .description = DescriptionOf(activity) });
    }
    return lines;
}

std::string ActivityTable::Text() const
{
    std::string text;
    for (const auto& line : Lines()) {
        text += line.day + "\t" + line.times + "\t" + line.length + "\t" + Plain(line.project) + "\t"
            + Plain(line.application) + "\t" + Plain(line.description) + "\n";
    }
    return text;
}

std::string ActivityTable::Csv() const
{
    auto csv = CsvHeader + std::string(CrLf);
    for (const auto& activity : mActivities) {
        csv += IsoMoment(activity.start) + "," + IsoMoment(activity.end) + "," + std::to_string(activity.duration);
        const auto description = DescriptionOf(activity);
        const auto people = mTitles == Titles::Shown ? activity.people : std::string();
        for (const auto* text : { &ProjectNameOf(activity), &activity.type, &description, &people }) {
            csv += "," + CsvField(*text);
        }
        csv += CrLf;
    }
    return csv;
}

}
