#pragma once

#include "portable/PatternFormats.h"

#include <string>

namespace tempodial {

/// The forms of a locale as the system has them, with what the user has changed of them.
LocalePatterns PatternsOfLocale(const std::string& localeName);
/// The forms of the user's own locale.
LocalePatterns PatternsOfUser();
/// A pattern of the system's in the notation of `DatePattern`.
std::string ToDatePattern(const std::string& pattern);

}
