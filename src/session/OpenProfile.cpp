#include "session/OpenProfile.h"

#include "host/system/IcuLocaleFormats.h"
#include "session/ProfileFolder.h"
#include "session/ProfilePlace.h"

namespace tempodial {

namespace {

std::string FolderOf(const ProfileOptions& options)
{
    return options.profile ? *options.profile : ProfileFolder::Default();
}

std::string LocaleOf(const ProfileOptions& options)
{
    return options.locale ? *options.locale : IcuLocaleFormats::FromEnvironment();
}

}

Profile OpenProfile(const ProfileOptions& options)
{
    return { FolderOf(options), LocaleOf(options), options.now, options.wait, options.warn };
}

Profile ReadProfile(const ProfileOptions& options)
{
    return Profile::ForReading(FolderOf(options), LocaleOf(options), options.now, options.warn);
}

std::string ProfilePath(const ProfileOptions& options)
{
    return ProfilePlace::UsablePath(FolderOf(options));
}

std::string DataPath(const Profile& profile, const std::string& name)
{
    return profile.DataFolder() + "/" + name;
}

}
