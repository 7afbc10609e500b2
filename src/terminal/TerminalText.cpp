#include "terminal/TerminalText.h"

#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

struct Range
{
    char32_t first, last;
};

/// East Asian wide and full-width characters, and pictures that are drawn as wide as those.
constexpr std::array<Range, 20> Wide { { { 0x1100, 0x115F }, { 0x231A, 0x231B }, { 0x23E9, 0x23EC }, { 0x2E80, 0x303E },
    { 0x3041, 0x33FF }, { 0x3400, 0x4DBF }, { 0x4E00, 0x9FFF }, { 0xA000, 0xA4CF }, { 0xA960, 0xA97F },
    { 0xAC00, 0xD7A3 }, { 0xF900, 0xFAFF }, { 0xFE10, 0xFE19 }, { 0xFE30, 0xFE6F }, { 0xFF00, 0xFF60 },
    { 0xFFE0, 0xFFE6 }, { 0x1F300, 0x1F64F }, { 0x1F680, 0x1F6FF }, { 0x1F900, 0x1F9FF }, { 0x20000, 0x2FFFD },
    { 0x30000, 0x3FFFD } } };
/// Characters that are drawn over the one before them, or not at all.
constexpr std::array<Range, 13> Narrow { { { 0x0300, 0x036F }, { 0x0483, 0x0489 }, { 0x0591, 0x05BD },
    { 0x0610, 0x061A }, { 0x064B, 0x065F }, { 0x0E34, 0x0E3A }, { 0x0E47, 0x0E4E }, { 0x1AB0, 0x1AFF },
    { 0x200B, 0x200D }, { 0x2066, 0x2069 }, { 0x20D0, 0x20FF }, { 0xFE00, 0xFE0F }, { 0xFE20, 0xFE2F } } };
/// Marks, embeddings, overrides and isolates of the direction of writing.
constexpr std::array<Range, 4> Directions { { { 0x061C, 0x061C }, { 0x200E, 0x200F }, { 0x202A, 0x202E },
    { 0x2066, 0x2069 } } };

/// Letters that are written from right to left.
constexpr std::array<Range, 5> RightToLeft { { { 0x0590, 0x08FF }, { 0xFB1D, 0xFDFF }, { 0xFE70, 0xFEFC },
    { 0x10800, 0x10FFF }, { 0x1E800, 0x1EFFF } } };

/// What an isolate begins with that finds its direction by its own letters, and what it ends with.
constexpr char32_t Isolate = 0x2068;
constexpr char32_t EndOfIsolate = 0x2069;

bool IsIn(std::span<const Range> ranges, char32_t character)
{
    return std::any_of(ranges.begin(), ranges.end(),
        [character](const auto& range) { return character >= range.first && character <= range.last; });
}

template <class Sink> void ForEach(std::string_view text, Sink&& sink)
{
    while (!text.empty()) {
        const auto character = DecodeUtf8(text, 0);
        sink(character, text.substr(0, character.size));
        text.remove_prefix(character.size);
    }
}

/// A text that grows by isolates too, of which only those stay that end in their line.
class IsolatedText
{
public:
    explicit IsolatedText(std::size_t capacity) { mText.reserve(capacity); }

    void Add(std::string_view bytes) { mText += bytes; }
    void Add(char32_t character) { AppendUtf8(mText, character); }
    void Begin()
    {
        mOpen.push_back(mText.size());
        Add(Isolate);
    }
    void End()
    {
        if (!mOpen.empty()) {
            mOpen.pop_back();
            Add(EndOfIsolate);
        }
    }
    /// Takes out what began and didn't end.
    void EndLine()
    {
        if (mOpen.empty()) {
            return;
        }
        constexpr std::size_t BytesOfAMark = 3;
        std::string behind;
        for (std::size_t i = 0; i < mOpen.size(); ++i) {
            const auto begin = mOpen[i] + BytesOfAMark;
            behind.append(mText, begin, i + 1 < mOpen.size() ? mOpen[i + 1] - begin : std::string::npos);
        }
        mText.replace(mOpen.front(), std::string::npos, behind);
        mOpen.clear();
    }
    std::string Text()
    {
        EndLine();
        return std::move(mText);
    }

private:
    std::string mText;
    std::vector<std::size_t> mOpen;
};

}

std::string Harmless(std::string_view text)
{
    constexpr char32_t Delete = 0x7F;
    constexpr char32_t ControlPictures = 0x2400;
    constexpr char32_t PictureOfDelete = 0x2421;
    IsolatedText harmless(text.size());
    ForEach(text, [&harmless](const Utf8Character& character, std::string_view bytes) {
        if (character.code == U'\n') {
            harmless.EndLine();
            harmless.Add(bytes);
        } else if (character.code < U' ') {
            harmless.Add(ControlPictures + character.code);
        } else if (character.code == Delete) {
            harmless.Add(PictureOfDelete);
        } else if (!character.isValid || (character.code > Delete && character.code < 0xA0)) {
            harmless.Add(ReplacementCharacter);
        } else if (character.code == Isolate) {
            harmless.Begin();
        } else if (character.code == EndOfIsolate) {
            harmless.End();
        } else if (!IsIn(Directions, character.code)) {
            harmless.Add(bytes);
        }
    });
    return harmless.Text();
}

std::string HarmlessLine(std::string_view text)
{
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool ends = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (!ends) {
            line += text[i] == '\n' || text[i] == '\t' ? ' ' : text[i];
        }
    }
    return Harmless(line);
}

std::string IsolatedLine(std::string_view text)
{
    bool hasDirection = false;
    std::string straight;
    ForEach(text, [&](const Utf8Character& character, std::string_view bytes) {
        const bool isMark = character.isValid && IsIn(Directions, character.code);
        hasDirection |= isMark || (character.isValid && IsIn(RightToLeft, character.code));
        straight += isMark ? std::string_view() : bytes;
    });
    auto line = HarmlessLine(straight);
    if (hasDirection) {
        std::string isolated;
        AppendUtf8(isolated, Isolate);
        isolated += line;
        AppendUtf8(isolated, EndOfIsolate);
        return isolated;
    }
    return line;
}

int DisplayWidth(std::string_view text)
{
    int width = 0;
    ForEach(text, [&width](const Utf8Character& character, std::string_view) {
        const auto code = character.isValid ? character.code : ReplacementCharacter;
        if (IsIn(Wide, code)) {
            width += 2;
        } else if (!IsIn(Narrow, code)) {
            ++width;
        }
    });
    return width;
}

}
