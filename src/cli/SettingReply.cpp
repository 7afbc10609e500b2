#include "cli/SettingReply.h"

#include "cli/TextTable.h"

namespace tempodial {

JsonValue SettingJson(const ProfileSetting& setting)
{
    return { { "name", setting.name }, { "value", setting.value }, { "default", setting.usual },
        { "meaning", setting.meaning } };
}

ShownText SettingsText(const std::vector<ProfileSetting>& settings)
{
    using enum TextTable::Side;
    TextTable table({ Left, Left, Left });
    for (const auto& setting : settings) {
        table.Add({ setting.name, setting.value, setting.meaning });
    }
    return table;
}

}
