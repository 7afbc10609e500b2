#pragma once

#include <cstdlib>

namespace tempodial {

/// One number for the short form of a test, another one for the long form, which `./check --long` asks for.
inline int ShortOrLong(int shortForm, int longForm)
{
    return std::getenv("TEMPODIAL_LONG_TESTS") != nullptr ? longForm : shortForm;
}

}
