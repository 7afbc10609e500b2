#include "session/ProgramRegistry.h"

#include "base/Text.h"
#include "host/files/ProgramFolder.h"
#include "session/ProductFacts.h"

#include <utility>

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
    return InProgramFolder("share/tempodial");
}

}
