#include "programs/OpenProfile.h"

#include "host/profile/ProfileFolder.h"
#include "host/system/IcuLocaleFormats.h"

namespace tempodial {

Profile OpenProfile(const ProfileOptions& options)
{
    return { options.profile ? *options.profile : ProfileFolder::Default(),
        options.locale ? *options.locale : IcuLocaleFormats::FromEnvironment(), options.now };
}

std::string DataPath(const Profile& profile, const std::string& name)
{
    return profile.DataFolder() + "/" + name;
}

}
