#pragma once

#include <stdexcept>

namespace tempodial {

/// A file that isn't what its source is said to be, or that can't be decided without a word more; the message says
/// which it may be, and what to do.
class WrongSource : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A file of which nothing may be taken, since it is cut off or beyond all limits; the message says what to do.
class BrokenSource : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
