#pragma once

#include "base/Ref.h"
#include "platform/system/Registry.h"

#include <string>

namespace tempodial {

/// A registry with the one value that a program knows by itself: an install folder that isn't set is the folder of
/// templates that belongs to the program.
class ProgramRegistry final : public Registry
{
public:
    ProgramRegistry(Ref<Registry> registry, std::string installFolder);

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override;
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override;

    /// The folder of templates that belongs to the running program, both installed and in a build tree.
    static std::string FolderOfThisProgram();

private:
    Ref<Registry> mRegistry;
    std::string mInstallFolder;
};

}
