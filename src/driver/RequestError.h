#pragma once

#include <stdexcept>

namespace tempodial {

/// A line that can't be done as it stands; the message says what is wrong.
class RequestError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
