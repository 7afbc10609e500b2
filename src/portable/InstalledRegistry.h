#pragma once

#include "base/Ref.h"
#include "platform/system/Registry.h"

#include <string>

namespace tempodial {

/// A registry with the one value that a program knows by itself: an install folder that isn't set for the machine is
/// the folder of templates that belongs to the program.
class InstalledRegistry final : public Registry
{
public:
    /// Where the install folder is set.
    struct Place
    {
        std::string key;
        std::string value;
    };

    InstalledRegistry(Ref<Registry> registry, Place place, std::string installFolder);

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override;
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override;

private:
    Ref<Registry> mRegistry;
    Place mPlace;
    std::string mInstallFolder;
};

}
