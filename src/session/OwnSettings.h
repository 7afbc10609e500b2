#pragma once

#include "session/Profile.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace tempodial {

/// A setting that there isn't, or a value that it can't have; the message names it and says what to give.
class SettingError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Something that a person may set, in words.
struct ProfileSetting
{
    std::string name;
    /// As it is now.
    std::string value;
    /// As it is unless something is set.
    std::string usual;
    /// What it is for, a sentence without its full stop.
    std::string meaning;
};

/// The settings of a profile. They are values of its registry; where the usual one is set, none is kept.
class OwnSettings
{
public:
    /// The profile must live as long as this.
    explicit OwnSettings(const Profile& profile)
        : mProfile(profile)
    {
    }

    /// The names of all, in the order in which they are shown.
    static std::vector<std::string> Names();
    /// All, in that order.
    std::vector<ProfileSetting> All() const;
    /// A value as it is kept of that name; fails with `SettingError`.
    static std::string Checked(const std::string& name, const std::string& value);
    /// Sets one and answers it as it is then; fails with `SettingError`, and as `TomlRegistry::Write` does.
    ProfileSetting Set(const std::string& name, const std::string& value) const;

private:
    const Profile& mProfile;
};

}
