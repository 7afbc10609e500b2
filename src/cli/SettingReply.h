#pragma once

#include "cli/ShownText.h"
#include "session/OwnSettings.h"
#include "terminal/JsonValue.h"

#include <vector>

namespace tempodial {

/// A setting in JSON.
JsonValue SettingJson(const ProfileSetting& setting);
/// Settings for people, a line each.
ShownText SettingsText(const std::vector<ProfileSetting>& settings);

}
