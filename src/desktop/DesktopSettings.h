#pragma once

#include "base/SettingsFile.h"
#include "desktop/ColourChoice.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// What a person has set of the desktop program, and how its window was left; kept for all profiles.
struct DesktopSettings
{
    enum class Appearance { System, Light, Dark, HighContrast };
    enum class View { Day, Week, List, SortOut };
    /// How much time the list shows.
    enum class ListSpan { Week, Month, Year };
    enum class FirstDay { Locale, Monday, Saturday, Sunday };

    /// The file's name, in the user's folder of configurations.
    static constexpr auto FileName = "tempodial/desktop.toml";
    /// The zoom that shows all activities of a period.
    static constexpr std::int64_t FittingZoom = 0;

    Appearance appearance = Appearance::System;
    View view = View::Week;
    ListSpan listSpan = ListSpan::Week;
    /// How much time is sorted out, a week or a month.
    ListSpan sortOutSpan = ListSpan::Week;
    ColourChoice colours = ColourChoice::Automatic;
    /// The locale whose forms are shown; that of the system when it is empty.
    std::string locale;
    /// The day with which a week begins.
    FirstDay firstDay = FirstDay::Locale;
    /// Hundredths of a pixel a minute.
    std::int64_t zoom = FittingZoom;
    bool foldsShortOnes = false;
    bool hidesTitles = false;
    bool hasSidePanel = true;
    /// Single letters choose views.
    bool hasLetterKeys = true;
    bool hasTray = false;
    /// The program begins in the tray.
    bool startsHidden = false;
    /// Says when the tracker has been silent for long.
    bool notifies = true;
    /// The window, in pixels, and the screen that it was on; 0 before there was one.
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::string screen;
    /// It filled that.
    bool isMaximised = false;

    friend bool operator==(const DesktopSettings&, const DesktopSettings&) = default;

    /// How much time a view shows; of days and weeks it says nothing.
    ListSpan SpanOf(View shown) const { return shown == View::SortOut ? sortOutSpan : listSpan; }
    /// The day with which a week begins, as `Date::Weekday` counts; takes that of the locale.
    int FirstDayOfWeek(int usual) const;

    /// Reads a file of settings; what it lacks is as usual. Fails with `SettingsFileError` when it can't be used.
    static DesktopSettings Read(const SettingsFile& file);
    /// The file with that path that holds them.
    SettingsFile Keep(const std::string& path) const;
    /// The file with that path that holds others, and of these what is different from what they were.
    SettingsFile KeepOver(const DesktopSettings& others, const DesktopSettings& before, const std::string& path) const;
};

}
