#include "desktop/UserGuide.h"

#include "base/Failure.h"
#include "host/files/PathOperations.h"
#include "host/files/ProgramFolder.h"
#include "session/ProductFacts.h"

namespace tempodial {

namespace {

constexpr auto GuideName = "/userguide/userguide.html";

}

std::string UserGuidePath(const Profile& profile)
{
    const auto named = profile.Registry()->Get(Hive::LocalMachine, ProductKey, InstallFolderValue).ToText();
    const auto path = (named.empty() ? InProgramFolder(TemplatesFolderName) : named) + GuideName;
    if (!StatusAt(NativePath::Exactly(path), Links::Followed)) {
        throw Failure(Error::FileNotFound, "The user guide isn't at " + path + ": install the program as a whole.");
    }
    return path;
}

}
