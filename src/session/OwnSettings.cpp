#include "session/OwnSettings.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "engine/core/SupportAddress.h"
#include "session/ProfileSettings.h"
#include "session/WorkWeek.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <string_view>
#include <system_error>

namespace tempodial {

namespace {

constexpr auto LocaleWeek = "locale";

/// How a setting is read and written.
struct Known
{
    const char* name;
    const char* meaning;
    /// What a value must be, for those who gave another.
    const char* form;
    std::string usual;
    /// What is set in a registry; empty for the usual value.
    std::function<std::string(const TomlRegistry& registry)> read;
    /// The value as it is kept, empty for one that can't be.
    std::function<std::string(const std::string& value)> checked;
    std::function<void(TomlRegistry& registry, const std::string& value)> write;
};

bool HasControls(std::string_view text)
{
    constexpr char32_t FirstOfTheSecondSet = 0x7F;
    constexpr char32_t BehindTheSecondSet = 0xA0;
    for (std::size_t i = 0; i < text.size();) {
        const auto character = DecodeUtf8(text, i);
        i += character.size;
        if (character.code < U' ' || (character.code >= FirstOfTheSecondSet && character.code < BehindTheSecondSet)) {
            return true;
        }
    }
    return false;
}

std::string CheckedWeek(const std::string& value)
{
    const auto week = WorkWeek::FromText(value);
    return week ? week->Text() : "";
}

std::string CheckedAddress(const std::string& value)
{
    const auto at = value.find('@');
    const bool isAddress = at != std::string::npos && at > 0 && at + 1 < value.size() && at == value.rfind('@')
        && value.find_first_of(" ,;:<>()[]\"\\") == std::string::npos && IsUtf8(value) && !HasControls(value);
    return isAddress ? value : "";
}

std::string CheckedRetention(const std::string& value)
{
    if (value == RetentionForever) {
        return value;
    }
    std::int32_t days = 0;
    const auto* const end = value.data() + value.size();
    const auto [stop, problem] = std::from_chars(value.data(), end, days);
    const bool isNumber = problem == std::errc() && stop == end && days >= 1 && days <= LongestRetention;
    return isNumber ? std::to_string(days) : "";
}

std::string CheckedDay(const std::string& value)
{
    const bool isKnown = value == LocaleWeek || std::find(WeekDays.begin(), WeekDays.end(), value) != WeekDays.end();
    return isKnown ? value : "";
}

std::string CheckedAuthor(const std::string& value)
{
    constexpr std::size_t Most = 200;
    return IsUtf8(value) && !HasControls(value) && value.size() <= Most ? value : "";
}

/// A setting that is a text of the product's own key.
Known TextSetting(const char* name, const char* meaning, const char* form, const std::string& usual,
    const char* registryValue, std::string (*checked)(const std::string&))
{
    return { name, meaning, form, usual,
        [registryValue](const TomlRegistry& registry) {
            return registry.Get(Hive::CurrentUser, ProductKey, registryValue).ToText();
        },
        checked,
        [registryValue, usual](TomlRegistry& registry, const std::string& value) {
            if (value == usual) {
                registry.Delete(Hive::CurrentUser, ProductKey, registryValue);
            } else {
                registry.Write(Hive::CurrentUser, ProductKey, registryValue, value);
            }
        } };
}

const std::vector<Known>& KnownSettings()
{
    static const std::vector<Known> settings {
        { "work-week", "The days and hours of your work, which \"report --work-week\" goes by",
            R"(days and hours, such as "Mon-Fri 09:00-17:30" or "Mon,Wed-Thu 08:00-12:00")", WorkWeek().Text(),
            [](const TomlRegistry& registry) { return WorkWeek::In(registry).Text(); }, CheckedWeek,
            [](TomlRegistry& registry, const std::string& value) { WorkWeek::FromText(value)->Keep(registry); } },
        TextSetting("support-address", "Where problem reports go", "the address of a mailbox, such as help@example.org",
            UsualSupportAddress(), SupportAddressValue, CheckedAddress),
        TextSetting("retention", "How many days files of the tracker are kept, or forever",
            "a number of days from 1 to 36500, or forever", std::to_string(UsualRetention), RetentionValue,
            CheckedRetention),
        TextSetting("week-start", "The day with which a week begins, or locale for your country's",
            "monday, tuesday, wednesday, thursday, friday, saturday, sunday or locale", LocaleWeek, WeekStartValue,
            CheckedDay),
        TextSetting("author", "Who sends a timesheet", "a name in one line, without control characters", "",
            AuthorValue, CheckedAuthor),
    };
    return settings;
}

const Known& Find(const std::string& name)
{
    const auto found = std::find_if(
        KnownSettings().begin(), KnownSettings().end(), [&name](const Known& known) { return known.name == name; });
    if (found == KnownSettings().end()) {
        throw SettingError(R"(there is no setting ")" + name + R"(": see "tempodial settings" for those there are)");
    }
    return *found;
}

ProfileSetting Told(const Known& known, const TomlRegistry& registry)
{
    // What was written by hand and can't be is as if it weren't there.
    const auto value = known.checked(known.read(registry));
    return { known.name, value.empty() ? known.usual : value, known.usual, known.meaning };
}

}

std::vector<std::string> OwnSettings::Names()
{
    std::vector<std::string> names;
    for (const auto& known : KnownSettings()) {
        names.emplace_back(known.name);
    }
    return names;
}

std::vector<ProfileSetting> OwnSettings::All() const
{
    std::vector<ProfileSetting> settings;
    for (const auto& known : KnownSettings()) {
        settings.push_back(Told(known, *mProfile.Registry()));
    }
    return settings;
}

std::string OwnSettings::Checked(const std::string& name, const std::string& value)
{
    const auto& known = Find(name);
    auto kept = known.checked(value);
    if (kept.empty() && !(value.empty() && known.usual.empty())) {
        throw SettingError(name + " can't be \"" + value + "\": give " + known.form);
    }
    return kept;
}

ProfileSetting OwnSettings::Set(const std::string& name, const std::string& value) const
{
    const auto& known = Find(name);
    known.write(*mProfile.Registry(), Checked(name, value));
    return Told(known, *mProfile.Registry());
}

}
