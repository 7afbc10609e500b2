#include "engine/foundation/TempodialWin32APICalls.h"

#include "base/Text.h"
#include "engine/foundation/Quietly.h"

namespace tempodial {

Variant TempodialWin32APICalls::ReadRegistryValue(const Platform& platform, Hive hive, const std::string& key,
    const std::string& value, RegistryAccess access) noexcept
{
    Variant result("");
    Quietly([&] {
        auto found = platform.registry->Read(hive, key, value, access);
        if (!found.IsEmpty()) {
            result = std::move(found);
        }
    });
    return result;
}

void TempodialWin32APICalls::WriteRegistryValue(const Platform& platform, Hive hive, const std::string& key,
    const std::string& value, const std::string& text) noexcept
{
    Quietly([&] { platform.registry->Write(hive, key, value, Trim(text)); });
}

std::int32_t TempodialWin32APICalls::GetThreadId(const Platform& platform) noexcept
{
    std::int32_t id = 0;
    Quietly([&] { id = platform.shell->ThreadId(); });
    return id;
}

void TempodialWin32APICalls::OpenInShell(const Platform& platform, const std::string& document) noexcept
{
    Quietly([&] { platform.shell->Open(document); });
}

}
