#include "support/MapRegistry.h"

namespace tempodial {

Variant MapRegistry::Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access)
{
    keys.emplace(hive, key);
    lastAccess = access;
    const auto found = values.find({ hive, key, value });
    return found == values.end() ? Variant() : found->second;
}

void MapRegistry::Write(Hive hive, const std::string& key, const std::string& value, const std::string& text)
{
    if (refusesWriting) {
        throw Failure(Error::PermissionDenied);
    }
    keys.emplace(hive, key);
    values[{ hive, key, value }] = text;
}

}
