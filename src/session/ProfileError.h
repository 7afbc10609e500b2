#pragma once

#include <stdexcept>

namespace tempodial {

/// A profile that can't be used; the message names what is wrong and what to do.
class ProfileError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A profile that another process uses at this moment.
class ProfileInUse : public ProfileError
{
public:
    using ProfileError::ProfileError;
};

}
