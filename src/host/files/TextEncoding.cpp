#include "host/files/TextEncoding.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

namespace tempodial {

namespace {

/// Windows-1252 from 0x80 to 0x9F; the five bytes without a letter are the control characters of their number.
constexpr char16_t UpperControls[] = { 0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
    0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178 };

std::string FromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        const auto letter = value >= 0x80 && value < 0xA0 ? UpperControls[value - 0x80] : char16_t { value };
        if (letter < 0x80) {
            text += byte;
        } else if (letter < 0x800) {
            text += static_cast<char>(0xC0 | (letter >> 6));
            text += static_cast<char>(0x80 | (letter & 0x3F));
        } else {
            text += static_cast<char>(0xE0 | (letter >> 12));
            text += static_cast<char>(0x80 | ((letter >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (letter & 0x3F));
        }
    }
    return text;
}

/// Bytes of the character at the start of a text, 0 when it isn't valid.
std::size_t CharacterSize(const unsigned char* bytes, std::size_t left)
{
    const auto first = bytes[0];
    if (first < 0x80) {
        return 1;
    }
    std::size_t size = 0;
    unsigned char lowest = 0x80;
    unsigned char highest = 0xBF;
    if (first >= 0xC2 && first <= 0xDF) {
        size = 2;
    } else if (first >= 0xE0 && first <= 0xEF) {
        size = 3;
        lowest = first == 0xE0 ? 0xA0 : lowest;
        highest = first == 0xED ? 0x9F : highest;
    } else if (first >= 0xF0 && first <= 0xF4) {
        size = 4;
        lowest = first == 0xF0 ? 0x90 : lowest;
        highest = first == 0xF4 ? 0x8F : highest;
    }
    if (size == 0 || left < size || bytes[1] < lowest || bytes[1] > highest) {
        return 0;
    }
    for (std::size_t at = 2; at < size; ++at) {
        if ((bytes[at] & 0xC0) != 0x80) {
            return 0;
        }
    }
    return size;
}

}

bool IsUtf8(std::string_view bytes)
{
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* end = at + bytes.size();
    while (at != end) {
        std::uint64_t eight = 0;
        while (end - at >= 8 && (std::memcpy(&eight, at, 8), (eight & 0x8080808080808080U) == 0)) {
            at += 8;
        }
        if (at == end) {
            break;
        }
        const auto size = CharacterSize(at, static_cast<std::size_t>(end - at));
        if (size == 0) {
            return false;
        }
        at += size;
    }
    return true;
}

std::string DecodedLine(std::string bytes)
{
    return IsUtf8(bytes) ? std::move(bytes) : FromWindows1252(bytes);
}

std::string DecodedLines(std::string bytes)
{
    if (IsUtf8(bytes)) {
        return bytes;
    }
    std::string text;
    std::size_t start = 0;
    while (start < bytes.size()) {
        const auto lineEnd = bytes.find('\n', start);
        const auto next = lineEnd == std::string::npos ? bytes.size() : lineEnd + 1;
        text += DecodedLine(bytes.substr(start, next - start));
        start = next;
    }
    return text;
}

}
