#include "base/Utf8.h"

#include <array>

namespace tempodial {

Utf8Character DecodeBeyondAscii(std::string_view text, std::size_t offset)
{
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[offset + index]); };
    const auto lead = byte(0);
    const Utf8Character broken = { lead, 1, false };
    const std::size_t size = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || text.size() - offset < size) {
        return broken;
    }
    char32_t code = lead & (0xffU >> (size + 1));
    for (std::size_t index = 1; index < size; ++index) {
        if (!IsUtf8Tail(text[offset + index])) {
            return broken;
        }
        code = (code << 6U) | (byte(index) & 0x3fU);
    }
    constexpr std::array<char32_t, 5> Smallest = { 0, 0, 0x80, 0x800, 0x10000 };
    const bool isSurrogate = code >= 0xd800 && code <= 0xdfff;
    if (code < Smallest[size] || isSurrogate || code > 0x10ffff) {
        return broken;
    }
    return { code, size, true };
}

void AppendUtf8(std::string& text, char32_t code)
{
    const auto tail = [&](unsigned shift) { text += static_cast<char>(0x80U | ((code >> shift) & 0x3fU)); };
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xc0U | (code >> 6U));
        tail(0);
    } else if (code < 0x10000) {
        text += static_cast<char>(0xe0U | (code >> 12U));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xf0U | (code >> 18U));
        tail(12);
        tail(6);
        tail(0);
    }
}

bool IsUtf8(std::string_view text)
{
    auto offset = AsciiRun(text, 0);
    while (offset < text.size()) {
        const auto character = DecodeBeyondAscii(text, offset);
        if (!character.isValid) {
            return false;
        }
        offset += character.size;
        offset += AsciiRun(text, offset);
    }
    return true;
}

}
