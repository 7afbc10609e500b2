#include "fuzz/FuzzTarget.h"
#include "host/settings/TomlSettings.h"
#include "slots/ViewSettings.h"
#include "support/TempFolder.h"

namespace tempodial {

namespace {

/// Programs and rules are read from a file, and a window is seen by them.
void SeeBySettings(std::string_view input)
{
    static const TempFolder folder(TempFolder::InMemory());
    const auto path = folder.Write("settings.toml", input);
    const Sighting sighting { "firefox", "", "Plan - Firefox", "", false };
    try {
        const auto file = ReadSettingsFile(path);
        try {
            ViewsBy(file, {}, {}).Make(sighting);
        } catch (const SettingsFileError&) {
            ViewsBy({}, {}, file).Make(sighting);
        }
    } catch (const SettingsFileError& error) {
        Hold(std::string(error.what()).find(path) != std::string::npos, "a file that can't be read is named");
    }
}

}

TEMPODIAL_FUZZ_TARGET(ViewSettings, SeeBySettings)

}
