#pragma once

#include <stdexcept>

namespace tempodial {

/// A recorder that can't run; the message says why and what to do.
class TrackError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A recorder of the profile runs already.
class RecorderRuns : public TrackError
{
public:
    using TrackError::TrackError;
};

}
