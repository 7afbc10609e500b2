#include "desktop/DesktopSettings.h"

#include "base/SettingsReader.h"
#include "desktop/TimeScale.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

namespace tempodial {

namespace {

constexpr auto Heading = "desktop";

using Appearance = DesktopSettings::Appearance;

constexpr SettingWord<Appearance> AppearanceWords[] { { "system", Appearance::System }, { "light", Appearance::Light },
    { "dark", Appearance::Dark }, { "high-contrast", Appearance::HighContrast } };
constexpr SettingWord<DesktopSettings::View> ViewWords[] { { "day", DesktopSettings::View::Day },
    { "week", DesktopSettings::View::Week }, { "list", DesktopSettings::View::List },
    { "sort-out", DesktopSettings::View::SortOut } };
constexpr SettingWord<DesktopSettings::ListSpan> ListSpanWords[] { { "week", DesktopSettings::ListSpan::Week },
    { "month", DesktopSettings::ListSpan::Month }, { "year", DesktopSettings::ListSpan::Year } };
/// More would be too many groups to be sorted out.
constexpr SettingWord<DesktopSettings::ListSpan> SortOutSpanWords[] { { "week", DesktopSettings::ListSpan::Week },
    { "month", DesktopSettings::ListSpan::Month } };
constexpr SettingWord<DesktopSettings::FirstDay> FirstDayWords[] { { "locale", DesktopSettings::FirstDay::Locale },
    { "monday", DesktopSettings::FirstDay::Monday }, { "saturday", DesktopSettings::FirstDay::Saturday },
    { "sunday", DesktopSettings::FirstDay::Sunday } };
constexpr SettingWord<ColourChoice> ColourWords[] { { "automatic", ColourChoice::Automatic },
    { "project", ColourChoice::Project }, { "application", ColourChoice::Application } };

/// Numbers from one to another.
struct NumberRange
{
    std::int64_t least;
    std::int64_t most;
    /// A number besides that stands for something else.
    std::int64_t special;
};

constexpr std::int64_t Hundredths = 100;
constexpr NumberRange ZoomRange { static_cast<std::int64_t>(TimeScale::LeastZoom * Hundredths),
    static_cast<std::int64_t>(TimeScale::MostZoom* Hundredths), DesktopSettings::FittingZoom };
constexpr NumberRange PixelRange { 1, std::numeric_limits<std::int16_t>::max(), 0 };

/// Takes settings out of a record.
class TakenSettings
{
public:
    explicit TakenSettings(SettingsReader& reader)
        : mReader(reader)
    {
    }

    void operator()(std::string_view name, bool& value) const { mReader.Take(name, value, "true or false"); }
    void operator()(std::string_view name, std::string& value) const { mReader.Take(name, value, "a text"); }
    void operator()(std::string_view name, std::int64_t& value, const NumberRange& range) const
    {
        mReader.Take(name, value, "a number");
        if (value != range.special && (value < range.least || value > range.most)) {
            mReader.Refuse(mReader.LineOf(name),
                std::string(name) + " can be " + std::to_string(range.special) + ", or " + std::to_string(range.least)
                    + " to " + std::to_string(range.most));
        }
    }
    template <class Value, std::size_t Size>
    void operator()(std::string_view name, Value& value, const SettingWord<Value> (&words)[Size]) const
    {
        mReader.TakeWord(name, value, words);
    }

private:
    SettingsReader& mReader;
};

/// Puts settings into a record.
class KeptSettings
{
public:
    explicit KeptSettings(SettingsRecord& record)
        : mRecord(record)
    {
    }

    template <class Value> void operator()(std::string_view name, const Value& value) const
    {
        mRecord.settings.push_back({ std::string(name), value });
    }
    void operator()(std::string_view name, std::int64_t value, const NumberRange&) const { (*this)(name, value); }
    template <class Value, std::size_t Size>
    void operator()(std::string_view name, Value value, const SettingWord<Value> (&words)[Size]) const
    {
        const auto word = std::find_if(
            std::begin(words), std::end(words), [value](const auto& known) { return known.value == value; });
        (*this)(name, std::string(word->word));
    }

private:
    SettingsRecord& mRecord;
};

/// Hands each setting with its name to a visitor.
template <class Settings, class Visitor> void VisitSettings(Settings& settings, const Visitor& visit)
{
    visit("appearance", settings.appearance, AppearanceWords);
    visit("view", settings.view, ViewWords);
    visit("list", settings.listSpan, ListSpanWords);
    visit("sort-out", settings.sortOutSpan, SortOutSpanWords);
    visit("colours", settings.colours, ColourWords);
    visit("locale", settings.locale);
    visit("first-day", settings.firstDay, FirstDayWords);
    visit("zoom", settings.zoom, ZoomRange);
    visit("fold-short", settings.foldsShortOnes);
    visit("hide-titles", settings.hidesTitles);
    visit("side-panel", settings.hasSidePanel);
    visit("letter-keys", settings.hasLetterKeys);
    visit("tray", settings.hasTray);
    visit("start-hidden", settings.startsHidden);
    visit("notify", settings.notifies);
    visit("width", settings.width, PixelRange);
    visit("height", settings.height, PixelRange);
    visit("screen", settings.screen);
    visit("maximised", settings.isMaximised);
}

}

int DesktopSettings::FirstDayOfWeek(int usual) const
{
    constexpr int Sunday = 1;
    constexpr int Monday = 2;
    constexpr int Saturday = 7;
    switch (firstDay) {
    case FirstDay::Monday:
        return Monday;
    case FirstDay::Saturday:
        return Saturday;
    case FirstDay::Sunday:
        return Sunday;
    default:
        return usual;
    }
}

DesktopSettings DesktopSettings::Read(const SettingsFile& file)
{
    DesktopSettings settings;
    for (const auto& record : file.records) {
        SettingsReader reader(file, record);
        reader.RequireKind(Heading);
        VisitSettings(settings, TakenSettings(reader));
        reader.RequireNothingElse();
    }
    return settings;
}

SettingsFile DesktopSettings::Keep(const std::string& path) const
{
    SettingsFile file { path, { { Heading, 0, {} } } };
    VisitSettings(*this, KeptSettings(file.records.front()));
    return file;
}

SettingsFile DesktopSettings::KeepOver(
    const DesktopSettings& others, const DesktopSettings& before, const std::string& path) const
{
    auto file = others.Keep(path);
    const auto kept = before.Keep(path);
    const auto now = Keep(path);
    for (std::size_t i = 0; i < file.records.front().settings.size(); ++i) {
        const auto& value = now.records.front().settings[i].value;
        if (value != kept.records.front().settings[i].value) {
            file.records.front().settings[i].value = value;
        }
    }
    return file;
}

}
