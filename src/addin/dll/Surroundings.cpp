#include "addin/dll/Surroundings.h"

#include "addin/win32/ModuleFolder.h"
#include "addin/win32/UserLocale.h"
#include "addin/win32/Win32Surroundings.h"
#include "engine/core/ProductWords.h"
#include "forms/FormModelFactory.h"

namespace tempodial {

namespace {

/// The folder with the module's own, which holds all that was installed with it.
std::string InstallFolder()
{
    const auto folder = ModuleFolder();
    return folder.substr(0, folder.find_last_of('\\'));
}

Ref<FormModelFactory>& Forms()
{
    static Ref<FormModelFactory> forms;
    return forms;
}

}

Ref<const Platform> Surroundings()
{
    auto platform = Win32Surroundings({ .text = FileText::OfSystem(),
        .title = ProductName,
        .installPlace = { ProductKey, InstallFolderValue },
        .installFolder = InstallFolder(),
        .locale = PatternsOfUser() });
    Forms() = MakeRef<FormModelFactory>();
    platform.forms = Forms();
    return MakeRef<Platform>(std::move(platform));
}

void EndSurroundings()
{
    if (const auto forms = std::exchange(Forms(), nullptr)) {
        forms->CloseAll();
    }
}

}
