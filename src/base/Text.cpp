#include "base/Text.h"

#include "base/CaseFold.h"
#include "base/Failure.h"
#include "base/Utf8.h"

#include <algorithm>
#include <cstring>

namespace tempodial {

namespace {

constexpr auto NotFound = std::string_view::npos;

/// Number of characters in the bytes up to an offset, which must be the start of a character.
std::size_t CharactersBefore(std::string_view text, std::size_t end)
{
    std::size_t offset = AsciiRun(text.substr(0, end), 0);
    auto count = offset;
    while (offset < end) {
        offset += DecodeUtf8(text, offset).size;
        ++count;
    }
    return count;
}

/// The offset that many characters behind another, the end of the text when there are fewer.
std::size_t Skip(std::string_view text, std::size_t offset, std::size_t characters)
{
    const auto run = AsciiRun(text.substr(0, offset + std::min(characters, text.size() - offset)), offset);
    offset += run;
    for (auto left = characters - run; left > 0 && offset < text.size(); --left) {
        offset += DecodeUtf8(text, offset).size;
    }
    return offset;
}

/// Offset of the first place, from the start of a character on, where a text that isn't well-formed occurs as whole
/// characters.
std::size_t FindBroken(std::string_view text, std::string_view find, std::size_t offset)
{
    for (; offset < text.size(); offset += DecodeUtf8(text, offset).size) {
        if (!text.substr(offset).starts_with(find)) {
            continue;
        }
        auto end = offset;
        while (end < offset + find.size()) {
            end += DecodeUtf8(text, end).size;
        }
        if (end == offset + find.size()) {
            return offset;
        }
    }
    return NotFound;
}

/// A text to look for, which isn't empty.
class Needle
{
public:
    explicit Needle(std::string_view find)
        : mFind(find)
        , mIsWellFormed(IsUtf8(find))
    {
    }

    /// Offset of the first occurrence at or behind an offset.
    std::size_t FindIn(std::string_view text, std::size_t offset) const
    {
        // Only a piece of a character can occur inside of one.
        return mIsWellFormed ? text.find(mFind, offset) : FindBroken(text, mFind, offset);
    }

private:
    std::string_view mFind;
    bool mIsWellFormed;
};

std::int32_t Position(std::string_view text, std::size_t offset)
{
    return offset == NotFound ? 0 : static_cast<std::int32_t>(CharactersBefore(text, offset)) + 1;
}

std::size_t CheckedLength(std::int32_t length)
{
    if (length < 0) {
        throw Failure(Error::InvalidCall);
    }
    return static_cast<std::size_t>(length);
}

std::size_t CheckedStart(std::int32_t start)
{
    if (start < 1) {
        throw Failure(Error::InvalidCall);
    }
    return static_cast<std::size_t>(start) - 1;
}

constexpr char FoldAscii(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

/// Eight ASCII bytes with their case folded: the high bit of a byte tells whether it reaches 'A', and then 'Z'.
constexpr AsciiWord FoldAscii(AsciiWord word)
{
    const auto isUpper = (word + EachByte(0x80 - 'A')) & ~(word + EachByte(0x80 - 'Z' - 1)) & EachByte(0x80);
    return word | (isUpper >> 2U);
}

/// Folds the ASCII bytes at the start of a text in place; the length of that run.
std::size_t FoldAsciiRun(std::string& text)
{
    std::size_t offset = 0;
    for (; offset + sizeof(AsciiWord) <= text.size(); offset += sizeof(AsciiWord)) {
        const auto word = WordAt(text.data() + offset);
        if (!IsAscii(word)) {
            break;
        }
        const auto folded = FoldAscii(word);
        std::memcpy(text.data() + offset, &folded, sizeof(folded));
    }
    for (; offset < text.size() && IsAscii(text[offset]); ++offset) {
        text[offset] = FoldAscii(text[offset]);
    }
    return offset;
}

}

std::int32_t Length(std::string_view text)
{
    return static_cast<std::int32_t>(CharactersBefore(text, text.size()));
}

std::int32_t InStr(std::int32_t start, std::string_view text, std::string_view find)
{
    const auto offset = Skip(text, 0, CheckedStart(start));
    if (offset == text.size()) {
        return 0;
    }
    return find.empty() ? start : Position(text, Needle(find).FindIn(text, offset));
}

std::int32_t InStr(std::string_view text, std::string_view find)
{
    return InStr(1, text, find);
}

std::int32_t InStrRev(std::string_view text, std::string_view find)
{
    if (find.empty()) {
        return Length(text);
    }
    const Needle needle(find);
    auto last = NotFound;
    for (auto offset = needle.FindIn(text, 0); offset != NotFound;
         offset = needle.FindIn(text, offset + DecodeUtf8(text, offset).size)) {
        last = offset;
    }
    return Position(text, last);
}

std::string Left(std::string_view text, std::int32_t length)
{
    return std::string(text.substr(0, Skip(text, 0, CheckedLength(length))));
}

std::string Right(std::string_view text, std::int32_t length)
{
    const auto wanted = CheckedLength(length);
    const auto all = CharactersBefore(text, text.size());
    return std::string(text.substr(wanted < all ? Skip(text, 0, all - wanted) : 0));
}

std::string Mid(std::string_view text, std::int32_t start)
{
    return std::string(text.substr(Skip(text, 0, CheckedStart(start))));
}

std::string Mid(std::string_view text, std::int32_t start, std::int32_t length)
{
    const auto offset = Skip(text, 0, CheckedStart(start));
    const auto end = Skip(text, offset, CheckedLength(length));
    return std::string(text.substr(offset, end - offset));
}

void Overwrite(std::string& text, std::int32_t start, std::int32_t length, std::string_view by)
{
    const auto offset = Skip(text, 0, CheckedStart(start));
    if (offset == text.size()) {
        throw Failure(Error::InvalidCall);
    }
    const auto room = CharactersBefore(std::string_view(text).substr(offset), text.size() - offset);
    const auto count = std::min({ CheckedLength(length), CharactersBefore(by, by.size()), room });
    text.replace(offset, Skip(text, offset, count) - offset, by.substr(0, Skip(by, 0, count)));
}

std::string Trim(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == NotFound) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r") == NotFound;
}

std::string Replace(std::string_view text, std::string_view find, std::string_view by)
{
    if (find.empty()) {
        return std::string(text);
    }
    const Needle needle(find);
    auto offset = needle.FindIn(text, 0);
    std::string out;
    // Exact for one occurrence, so that a long text put in once isn't moved again.
    out.reserve(offset == NotFound ? text.size() : text.size() - find.size() + by.size());
    std::size_t done = 0;
    for (; offset != NotFound; offset = needle.FindIn(text, done)) {
        out.append(text.substr(done, offset - done)).append(by);
        done = offset + find.size();
    }
    out.append(text.substr(done));
    return out; // handed on; what `append` answers would be copied
}

std::vector<std::string> Split(std::string_view text, std::string_view separator)
{
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    std::size_t done = 0;
    if (!separator.empty()) {
        const Needle needle(separator);
        for (auto offset = needle.FindIn(text, 0); offset != NotFound; offset = needle.FindIn(text, done)) {
            pieces.emplace_back(text.substr(done, offset - done));
            done = offset + separator.size();
        }
    }
    pieces.emplace_back(text.substr(done));
    return pieces;
}

std::string Fold(std::string_view text)
{
    std::string out(text);
    const auto ascii = FoldAsciiRun(out);
    if (ascii == text.size()) {
        return out;
    }
    out.resize(ascii);
    for (auto offset = ascii; offset < text.size();) {
        const auto character = DecodeUtf8(text, offset);
        if (character.isValid) {
            AppendUtf8(out, FoldCharacter(character.code));
        } else {
            out += text[offset];
        }
        offset += character.size;
    }
    return out;
}

int CompareIgnoringCase(std::string_view a, std::string_view b)
{
    if (IsAscii(a) && IsAscii(b)) {
        const auto common = std::min(a.size(), b.size());
        for (std::size_t index = 0; index < common; ++index) {
            const int difference = FoldAscii(a[index]) - FoldAscii(b[index]);
            if (difference != 0) {
                return difference;
            }
        }
        return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
    }
    return Fold(a).compare(Fold(b));
}

bool EqualIgnoringCase(std::string_view a, std::string_view b)
{
    if (!a.empty() && !b.empty() && IsAscii(a.front()) && IsAscii(b.front())
        && FoldAscii(a.front()) != FoldAscii(b.front())) {
        return false;
    }
    // Unequal lengths settle most questions that are left, but fold to equal ones outside of ASCII.
    const bool mayBeEqual = a.size() == b.size() || !IsAscii(a) || !IsAscii(b);
    return mayBeEqual && CompareIgnoringCase(a, b) == 0;
}

std::int32_t InStrIgnoringCase(std::string_view text, std::string_view find)
{
    return InStr(Fold(text), Fold(find));
}

}
