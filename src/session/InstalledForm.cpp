#include "session/InstalledForm.h"

#include "host/files/PathOperations.h"
#include "host/files/ProgramFolder.h"
#include "host/system/TomlRegistry.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/ProfileError.h"

namespace tempodial {

namespace {

/// True when the profile names a folder of templates itself.
bool NamesFolder(const ProfileOptions& options)
{
    try {
        const TomlRegistry registry(ProfilePath(options) + "/" + RegistryFileName);
        return !registry.Get(Hive::LocalMachine, ProductKey, InstallFolderValue).IsEmpty();
    } catch (const RegistryFileError& error) {
        throw ProfileError(error.what());
    }
}

}

const ProfileOptions& RequireForm(const ProfileOptions& options)
{
    const auto folder = InProgramFolder(TemplatesFolderName);
    if (!StatusAt(NativePath::Exactly(folder + "/" + FormFileName), Links::Followed) && !NamesFolder(options)) {
        throw ProfileError("the program isn't installed as a whole, its templates aren't in " + folder
            + ": install it (cmake --install), or run it where it was built");
    }
    return options;
}

}
