#pragma once

#include <string>

namespace tempodial {

/// The precedence "1", "2" or "3" as people call it: high, medium or low.
std::string PrecedenceWord(const std::string& precedence);
/// The precedence that an argument of that name calls by a word. Fails with a `UsageError`.
std::string PrecedenceOf(const std::string& name, const std::string& word);

}
