#include "session/OpenProfile.h"

#include "host/system/IcuLocaleFormats.h"
#include "session/ProfileFolder.h"

namespace tempodial {

Profile OpenProfile(const ProfileOptions& options)
{
    return { options.profile ? *options.profile : ProfileFolder::Default(),
        options.locale ? *options.locale : IcuLocaleFormats::FromEnvironment(), options.now, options.wait,
        options.warn };
}

std::string DataPath(const Profile& profile, const std::string& name)
{
    return profile.DataFolder() + "/" + name;
}

}
