#include "base/Failure.h"
#include "fuzz/FuzzTarget.h"
#include "host/system/TomlRegistry.h"
#include "support/TempFolder.h"

namespace tempodial {

namespace {

constexpr auto Key = "Software\\Lindenfold\\Tempodial";

/// A registry file is read, changed and read again.
void ChangeRegistry(std::string_view input)
{
    static const TempFolder folder(TempFolder::InMemory());
    const auto path = folder.Write("registry.toml", input);
    try {
        TomlRegistry registry(path);
        for (const auto hive : { Hive::CurrentUser, Hive::LocalMachine }) {
            const auto kept = registry.Read(hive, Key, "Kept", RegistryAccess::Query);
            try {
                registry.Write(hive, Key, "Written", "a\r\n\"b\" = '#'");
                registry.WriteNumber(hive, "", "Number", -1);
            } catch (const Failure&) {
                Hold(registry.Get(hive, Key, "Kept") == kept, "what fails changes nothing");
                continue;
            }
            const TomlRegistry again(path);
            Hold(again.Get(hive, Key, "WRITTEN") == Variant("a\r\n\"b\" = '#'"), "a text is found again");
            Hold(again.Get(hive, "", "number") == Variant(-1), "a number is found again");
            Hold(again.Get(hive, Key, "Kept") == kept, "what isn't changed stays");
        }
    } catch (const RegistryFileError& error) {
        Hold(std::string(error.what()).find(path) != std::string::npos, "a file that can't be read is named");
        Hold(folder.Read("registry.toml") == input, "a file that can't be read stays as it is");
    }
}

}

TEMPODIAL_FUZZ_TARGET(Registry, ChangeRegistry)

}
