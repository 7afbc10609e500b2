#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tempodial {

/// The place of an argument's text among the words that it may be; `name` is the argument's name for the message. Fails
/// with a `UsageError` for another text.
std::size_t PlaceOfWord(const std::string& name, const std::string& text, const std::vector<std::string>& words);

/// The value that an argument's text stands for, of which the words are given in the order of the values.
template <class Value>
Value ToValue(const std::string& name, const std::string& text, const std::vector<std::string>& words)
{
    return static_cast<Value>(PlaceOfWord(name, text, words));
}

}
