#include "base/SettingsReader.h"

namespace tempodial {

void SettingsReader::Refuse(std::size_t line, const std::string& reason) const
{
    throw SettingsFileError(mFile.path, line, reason);
}

void SettingsReader::RequireKind(std::string_view kind) const
{
    if (mRecord.kind != kind) {
        Refuse(mRecord.line, "[[" + mRecord.kind + "]] isn't known here, only [[" + std::string(kind) + "]]");
    }
}

std::size_t SettingsReader::LineOf(std::string_view name) const
{
    const auto* setting = Find(name);
    return setting == nullptr ? mRecord.line : setting->line;
}

void SettingsReader::RequireNothingElse() const
{
    for (const auto& setting : mRecord.settings) {
        if (std::find(mAsked.begin(), mAsked.end(), setting.name) == mAsked.end()) {
            Refuse(setting.line, "\"" + setting.name + "\" isn't known in [[" + mRecord.kind + "]]");
        }
    }
}

const Setting* SettingsReader::Find(std::string_view name) const
{
    const auto found = std::find_if(
        mRecord.settings.begin(), mRecord.settings.end(), [name](const auto& setting) { return setting.name == name; });
    return found == mRecord.settings.end() ? nullptr : &*found;
}

}
