#pragma once

#include "platform/system/Registry.h"

#include <string>

namespace tempodial {

/// The system's registry. Reading makes an absent key, as far as that is permitted.
class Win32Registry final : public Registry
{
public:
    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override;
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override;
};

}
