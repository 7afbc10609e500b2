#include "session/ProfileSettings.h"

#include "base/Text.h"
#include "host/system/IcuLocaleFormats.h"
#include "host/system/TomlRegistry.h"
#include "session/ProductFacts.h"
#include "session/ProfileError.h"
#include "session/ProfileFolder.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>

namespace tempodial {

namespace {

std::string SettingIn(const TomlRegistry& registry, const char* value)
{
    return registry.Get(Hive::CurrentUser, ProductKey, value).ToText();
}

std::string WeekStartSetting(const ProfileOptions& options)
{
    const auto folder = options.profile ? *options.profile : ProfileFolder::Default();
    try {
        return SettingIn(TomlRegistry(folder + "/" + RegistryFileName), WeekStartValue);
    } catch (const RegistryFileError& error) {
        throw ProfileError(error.what());
    }
}

}

int FirstDayOfWeek(const ProfileOptions& options)
{
    const auto setting = WeekStartSetting(options);
    const auto* const day = std::find_if(WeekDays.begin(), WeekDays.end(),
        [&setting](std::string_view name) { return EqualIgnoringCase(name, setting); });
    if (day != WeekDays.end()) {
        return static_cast<int>(day - WeekDays.begin()) + 1;
    }
    return IcuLocaleFormats::FirstDayOfWeek(options.locale ? *options.locale : IcuLocaleFormats::FromEnvironment());
}

std::string AuthorOf(const Profile& profile)
{
    return SettingIn(*profile.Registry(), AuthorValue);
}

std::string SupportAddressOf(const Profile& profile)
{
    return SettingIn(*profile.Registry(), SupportAddressValue);
}

std::optional<std::int32_t> RetentionOf(const Profile& profile)
{
    const auto setting = SettingIn(*profile.Registry(), RetentionValue);
    if (EqualIgnoringCase(setting, RetentionForever)) {
        return std::nullopt;
    }
    std::int32_t days = 0;
    const auto* const end = setting.data() + setting.size();
    const auto [stop, problem] = std::from_chars(setting.data(), end, days);
    const bool isNumber = problem == std::errc() && stop == end && days >= 1 && days <= LongestRetention;
    return isNumber ? days : UsualRetention;
}

}
