#pragma once

#include "base/Variant.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The hives of the registry.
enum class Hive { CurrentUser, LocalMachine };

/// What a key is opened for.
enum class RegistryAccess : std::int32_t { Query = 1, All = 63 };

/// The registry.
class Registry
{
public:
    virtual ~Registry() = default;

    /// A text or a number; nothing when the value is absent, of another type or not to be read. An absent key is made.
    virtual Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) = 0;
    /// Writes a text, making the key; fails when the store refuses.
    virtual void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) = 0;
};

}
