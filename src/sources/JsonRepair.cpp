#include "sources/JsonRepair.h"

#include "base/Utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <optional>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::size_t RepairedBytes = std::size_t { 64 } << 10;
/// What is looked at at once: both halves of a surrogate pair as escapes.
constexpr std::size_t EscapeSize = 6;
constexpr std::size_t LongestLook = 2 * EscapeSize;
/// The most that a number is written with; what is longer is none that counts anything.
constexpr std::size_t LongestNumber = 400;
constexpr char32_t FirstHighSurrogate = 0xd800;
constexpr char32_t FirstLowSurrogate = 0xdc00;
constexpr char32_t BehindSurrogates = 0xe000;

bool IsInWordOfJson(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '+'
        || byte == '-' || byte == '.';
}

/// The unit that an escape at the beginning of a text stands for, nothing when there is none.
std::optional<char32_t> EscapedUnit(std::string_view text)
{
    constexpr int Hexadecimal = 16;
    unsigned unit = 0;
    if (text.size() < EscapeSize || !text.starts_with("\\u")) {
        return std::nullopt;
    }
    const auto* end = text.data() + EscapeSize;
    const auto read = std::from_chars(text.data() + 2, end, unit, Hexadecimal);
    return read.ec == std::errc() && read.ptr == end ? std::optional<char32_t>(unit) : std::nullopt;
}

bool IsNoNumber(std::string_view word)
{
    constexpr std::string_view Words[] { "NaN", "nan", "Infinity", "-Infinity", "inf", "-inf", "Inf", "-Inf", "-NaN",
        "-nan" };
    if (std::find(std::begin(Words), std::end(Words), word) != std::end(Words) || word.size() > LongestNumber) {
        return true;
    }
    constexpr std::string_view Digits = "-0123456789";
    const bool mayBeLarge = Digits.find(word.front()) != std::string_view::npos
        && (word.find_first_of("eE") != std::string_view::npos || word.size() > std::size_t { 300 });
    double number = 0;
    return mayBeLarge
        && (std::from_chars(word.data(), word.data() + word.size(), number).ec == std::errc::result_out_of_range
            || !std::isfinite(number));
}

}

JsonRepair::int_type JsonRepair::underflow()
{
    mOut.clear();
    while (mOut.empty()) {
        Read();
        if (mIn.empty()) {
            EndWord();
            break;
        }
        const auto until = mIsAtEnd ? mIn.size() : mIn.size() - LongestLook;
        while (mAt < until) {
            if (mIsInText) {
                TakeInText();
            } else {
                TakeOutside();
            }
        }
    }
    setg(mOut.data(), mOut.data(), mOut.data() + mOut.size());
    return mOut.empty() ? traits_type::eof() : traits_type::to_int_type(mOut.front());
}

void JsonRepair::Read()
{
    mIn.erase(0, mAt);
    mAt = 0;
    while (!mIsAtEnd && mIn.size() <= LongestLook) {
        const auto before = mIn.size();
        mIn.resize(before + RepairedBytes);
        const auto count = mSource.sgetn(mIn.data() + before, RepairedBytes);
        mIn.resize(before + static_cast<std::size_t>(std::max<std::streamsize>(count, 0)));
        mIsAtEnd = count <= 0;
    }
}

void JsonRepair::TakeOutside()
{
    const char byte = mIn[mAt++];
    if (IsInWordOfJson(byte)) {
        // Of what is too long to be a number the rest says nothing more.
        if (mWord.size() <= LongestNumber) {
            mWord += byte;
        }
        return;
    }
    EndWord();
    mIsInText = byte == '"';
    mOut += byte;
}

void JsonRepair::EndWord()
{
    if (!mWord.empty()) {
        mOut += IsNoNumber(mWord) ? "null" : mWord;
        mWord.clear();
    }
}

void JsonRepair::TakeInText()
{
    const char byte = mIn[mAt];
    if (byte == '\\') {
        TakeEscape();
        return;
    }
    constexpr char FirstPrinted = ' ';
    const auto letter = DecodeUtf8(mIn, mAt);
    if (letter.isValid && (!IsAscii(byte) || byte >= FirstPrinted)) {
        mOut.append(mIn, mAt, letter.size);
    } else if (letter.isValid) {
        mOut += ' ';
    }
    mIsInText = byte != '"';
    mAt += letter.size;
}

void JsonRepair::TakeEscape()
{
    const auto rest = std::string_view(mIn).substr(mAt);
    if (rest.size() == 1) {
        // Nothing follows: the document is cut off here.
        mOut += rest;
        ++mAt;
        return;
    }
    constexpr std::string_view Escaped = "\"\\/bfnrt";
    if (Escaped.find(rest[1]) != std::string_view::npos) {
        mOut += rest.substr(0, 2);
        mAt += 2;
        return;
    }
    const auto unit = EscapedUnit(rest);
    if (!unit) {
        mOut += "\\\\";
        ++mAt;
        return;
    }
    const bool isSurrogate = *unit >= FirstHighSurrogate && *unit < BehindSurrogates;
    const auto next = *unit < FirstLowSurrogate ? EscapedUnit(rest.substr(EscapeSize)) : std::nullopt;
    const bool isPair = isSurrogate && next && *next >= FirstLowSurrogate && *next < BehindSurrogates;
    const auto size = isPair ? LongestLook : EscapeSize;
    if (!isSurrogate || isPair) {
        mOut += rest.substr(0, size);
    }
    mAt += size;
}

}
