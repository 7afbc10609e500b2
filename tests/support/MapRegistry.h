#pragma once

#include "base/Failure.h"
#include "platform/system/Registry.h"

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

namespace tempodial {

/// A registry in memory, which a test fills and looks at.
class MapRegistry : public Registry
{
public:
    using Key = std::pair<Hive, std::string>;

    std::map<std::tuple<Hive, std::string, std::string>, Variant> values;
    /// The keys that exist.
    std::set<Key> keys;
    /// What the last key was opened with for reading.
    RegistryAccess lastAccess {};
    bool refusesWriting = false;

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override;
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override;
};

}
