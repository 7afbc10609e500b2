#include "session/ProgramRegistry.h"

#include "base/Text.h"
#include "session/ProductFacts.h"

#include <filesystem>
#include <system_error>

namespace tempodial {

ProgramRegistry::ProgramRegistry(Ref<Registry> registry, std::string installFolder)
    : mRegistry(std::move(registry))
    , mInstallFolder(std::move(installFolder))
{
}

Variant ProgramRegistry::Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access)
{
    auto found = mRegistry->Read(hive, key, value, access);
    if (found.IsEmpty() && hive == Hive::LocalMachine && EqualIgnoringCase(key, ProductKey)
        && EqualIgnoringCase(value, InstallFolderValue)) {
        return mInstallFolder;
    }
    return found;
}

void ProgramRegistry::Write(Hive hive, const std::string& key, const std::string& value, const std::string& text)
{
    mRegistry->Write(hive, key, value, text);
}

std::string ProgramRegistry::FolderOfThisProgram()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / "share/tempodial").string();
}

}
