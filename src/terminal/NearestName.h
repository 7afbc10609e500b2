#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The name that somebody most likely meant who typed another, whatever the case of the letters; empty when none is
/// near: a third of the letters may be wrong, missing, too many or in each other's place.
std::string NearestName(std::string_view typed, const std::vector<std::string>& names);

/// What to do about something typed that there isn't: the nearest of the names that there are, if one is near, and the
/// advice, which begins with a small letter.
std::string NearestAdvice(std::string_view typed, const std::vector<std::string>& names, const std::string& advice);

}
