#pragma once

#include <stdexcept>

namespace tempodial {

/// Something that a person can't do on a form; the message says why.
class FormRefusal : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
