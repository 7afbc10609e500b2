#include "session/ProfilePlace.h"

#include "host/files/PathOperations.h"
#include "session/ProductFacts.h"
#include "session/ProfileError.h"

#include <algorithm>
#include <array>

namespace tempodial {

ProfilePlace::ProfilePlace(const std::string& path)
    : mPath(UsablePath(path))
{
    const auto folder = NativePath::Exactly(mPath);
    try {
        (void)StatusOf(folder, Links::Followed);
        mFolder.emplace(folder);
    } catch (const SystemFailure& failure) {
        if (!failure.IsAbsence()) {
            throw ProfileError("can't open the profile folder " + mPath + ": " + failure.Reason()
                + ": name another with --profile, or see to its permissions");
        }
    }
}

std::string ProfilePlace::UsablePath(const std::string& path)
{
    try {
        if (!path.empty()) {
            return AbsolutePath(path).Text();
        }
    } catch (const SystemFailure&) {
        // Told below.
    }
    throw ProfileError("the profile has no usable path: name a folder with --profile");
}

bool ProfilePlace::HasProfileIn(const std::string& path)
{
    const std::array<std::string, 3> names { MailboxFileName, RegistryFileName, DataFolderName };
    return std::any_of(names.begin(), names.end(), [&](const auto& name) {
        return StatusAt(NativePath::Exactly(path + "/" + name), Links::Followed).has_value();
    });
}

std::string ProfilePlace::WarningOfWriters(const std::string& path)
{
    return "other users may write into the profile " + path
        + ": take that right from them (chmod go-w), or name another with --profile";
}

}
