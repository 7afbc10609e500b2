#include "portable/TextEncoding.h"

#include "base/Utf8.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

/// Windows-1252 from 0x80 to 0x9F; the five bytes without a letter are the control characters of their number.
constexpr char16_t UpperControls[] = { 0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
    0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178 };

}

std::string FromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        const auto letter = value >= 0x80 && value < 0xA0 ? UpperControls[value - 0x80] : char16_t { value };
        AppendUtf8(text, letter);
    }
    return text;
}

std::string DecodedLine(std::string bytes, TextDecoder decoder)
{
    return IsUtf8(bytes) ? std::move(bytes) : decoder(bytes);
}

std::string DecodedLines(std::string bytes, TextDecoder decoder)
{
    if (IsUtf8(bytes)) {
        return bytes;
    }
    std::string text;
    std::size_t start = 0;
    while (start < bytes.size()) {
        const auto lineEnd = bytes.find('\n', start);
        const auto next = lineEnd == std::string::npos ? bytes.size() : lineEnd + 1;
        text += DecodedLine(bytes.substr(start, next - start), decoder);
        start = next;
    }
    return text;
}

}
