#include "portable/InstalledRegistry.h"

#include "base/Text.h"

#include <utility>

namespace tempodial {

InstalledRegistry::InstalledRegistry(Ref<Registry> registry, Place place, std::string installFolder)
    : mRegistry(std::move(registry))
    , mPlace(std::move(place))
    , mInstallFolder(std::move(installFolder))
{
}

Variant InstalledRegistry::Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access)
{
    auto found = mRegistry->Read(hive, key, value, access);
    if (found.IsEmpty() && hive == Hive::LocalMachine && EqualIgnoringCase(key, mPlace.key)
        && EqualIgnoringCase(value, mPlace.value)) {
        return mInstallFolder;
    }
    return found;
}

void InstalledRegistry::Write(Hive hive, const std::string& key, const std::string& value, const std::string& text)
{
    mRegistry->Write(hive, key, value, text);
}

}
