#include "addin/dll/Surroundings.h"

#include "addin/win32/ModuleFolder.h"
#include "addin/win32/UserLocale.h"
#include "addin/win32/Win32Surroundings.h"
#include "addin/win32/forms/Win32FormFactory.h"
#include "engine/core/ProductWords.h"

#include <utility>

namespace tempodial {

namespace {

/// The folder with the module's own, which holds all that was installed with it.
std::string InstallFolder()
{
    const auto folder = ModuleFolder();
    return folder.substr(0, folder.find_last_of('\\'));
}

Ref<Win32FormFactory>& Forms()
{
    static Ref<Win32FormFactory> forms;
    return forms;
}

}

Ref<const Platform> Surroundings(const ComRef<IDispatch>& application)
{
    Forms() = MakeRef<Win32FormFactory>(HostsWindow(application));
    return MakeRef<Platform>(Win32Surroundings({ .text = FileText::OfSystem(),
        .title = ProductName,
        .installPlace = { ProductKey, InstallFolderValue },
        .installFolder = InstallFolder(),
        .locale = PatternsOfUser(),
        .forms = Forms() }));
}

void EndSurroundings()
{
    if (const auto forms = std::exchange(Forms(), nullptr)) {
        forms->CloseAll();
    }
}

}
