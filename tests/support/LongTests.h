#pragma once

#include <cstdlib>

namespace tempodial {

/// One number for the short form of a test, another one for the long form, which `./check --long` asks for.
inline int ShortOrLong(int shortForm, int longForm)
{
    return std::getenv("TEMPODIAL_LONG_TESTS") != nullptr ? longForm : shortForm;
}

/// At how many points a test stops a program. Under the address sanitizer, which doesn't see more when the program is
/// stopped elsewhere, the short form has a third of them.
inline int StopPoints(int shortForm, int longForm)
{
#if defined(__SANITIZE_ADDRESS__)
    shortForm = (shortForm + 2) / 3;
#endif
    return ShortOrLong(shortForm, longForm);
}

}
