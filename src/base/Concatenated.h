#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tempodial {

/// Texts one behind the other, in memory that is taken once.
inline std::string Concatenated(std::initializer_list<std::string_view> texts)
{
    std::size_t size = 0;
    for (const auto text : texts) {
        size += text.size();
    }
    std::string all;
    all.reserve(size);
    for (const auto text : texts) {
        all += text;
    }
    return all;
}

}
