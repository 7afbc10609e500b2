#pragma once

#include "base/Utf8.h"

#include <cstddef>
#include <string>

namespace tempodial {

/// Takes away a letter at the end of a text that was cut in the middle of it.
inline void DropCutLetter(std::string& text)
{
    constexpr std::size_t LongestLetter = 4;
    auto at = text.size();
    while (at > 0 && text.size() - at < LongestLetter && IsUtf8Tail(text[at - 1])) {
        --at;
    }
    if (at > 0 && !IsAscii(text[at - 1]) && !DecodeUtf8(text, at - 1).isValid) {
        text.resize(at - 1);
    }
}

}
