#pragma once

#include "portable/PatternFormats.h"

#include <string>

namespace tempodial {

/// The forms of a locale as ICU knows them, with years of four digits, digits 0 to 9 and plain blanks.
class IcuLocaleFormats : public PatternFormats
{
public:
    /// Takes a locale's name, such as en_US or de_DE.UTF-8; an unknown one fails (5).
    explicit IcuLocaleFormats(const std::string& localeName);

    /// True when a locale of that name has forms. "C" and "POSIX" are those of the United States.
    static bool IsKnown(const std::string& localeName);
    /// The name of the locale that the environment asks for, "en_US" when it asks for none that is known.
    static std::string FromEnvironment();

    /// The day with which a week begins in a locale, Sunday 1 to Saturday 7; an unknown locale fails (5).
    static int FirstDayOfWeek(const std::string& localeName);
};

}
