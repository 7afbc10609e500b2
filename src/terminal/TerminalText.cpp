#include "terminal/TerminalText.h"

#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstddef>
#include <cwchar>
#include <span>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

struct Range
{
    char32_t first, last;
};

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

/// While it lives, the library tells widths of Unicode characters in this thread, as terminals know them, whatever the
/// user's locale.
class UnicodeWidths
{
public:
    UnicodeWidths()
        : mFormer(::uselocale(Unicode()))
    {
    }
    ~UnicodeWidths() { ::uselocale(mFormer); }
    UnicodeWidths(const UnicodeWidths&) = delete;
    UnicodeWidths& operator=(const UnicodeWidths&) = delete;

    /// Columns of a character: two for a wide one, none for a combining one, one for one that nobody knows.
    int Of(char32_t character) const
    {
        const auto width = ::wcwidth(static_cast<wchar_t>(character));
        return width < 0 ? 1 : width;
    }

private:
    static locale_t Unicode()
    {
        static const auto locale = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        return locale;
    }

    locale_t mFormer;
};

char32_t CodeOf(const Utf8Character& character)
{
    return character.isValid ? character.code : ReplacementCharacter;
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

bool TurnsDirection(std::string_view text)
{
    // What comes before the first Hebrew letter is most of what is asked about, and its bytes are below that letter's.
    constexpr unsigned char FirstByteOfRightToLeft = 0xD6;
    if (std::none_of(text.begin(), text.end(),
            [](char byte) { return static_cast<unsigned char>(byte) >= FirstByteOfRightToLeft; })) {
        return false;
    }
    bool turns = false;
    ForEach(text, [&turns](const Utf8Character& character, std::string_view) {
        turns |= character.isValid && (IsIn(Directions, character.code) || IsIn(RightToLeft, character.code));
    });
    return turns;
}

std::string Isolated(std::string_view text)
{
    if (!TurnsDirection(text)) {
        return std::string(text);
    }
    std::string isolated;
    AppendUtf8(isolated, Isolate);
    ForEach(text, [&isolated](const Utf8Character& character, std::string_view bytes) {
        isolated += character.isValid && IsIn(Directions, character.code) ? std::string_view() : bytes;
    });
    AppendUtf8(isolated, EndOfIsolate);
    return isolated;
}

std::string IsolatedLine(std::string_view text)
{
    return HarmlessLine(Isolated(text));
}

std::string InQuotes(std::string_view text)
{
    return "\"" + IsolatedLine(text) + "\"";
}

int DisplayWidth(std::string_view text)
{
    const UnicodeWidths widths;
    int width = 0;
    ForEach(text, [&](const Utf8Character& character, std::string_view) { width += widths.Of(CodeOf(character)); });
    return width;
}

std::string Shortened(std::string_view text, int columns)
{
    const UnicodeWidths widths;
    std::string shortened;
    int room = columns - 1;
    int open = 0;
    while (!text.empty()) {
        const auto character = DecodeUtf8(text, 0);
        const auto code = CodeOf(character);
        room -= widths.Of(code);
        if (room < 0) {
            break;
        }
        open += code == Isolate ? 1 : code == EndOfIsolate ? -1 : 0;
        shortened += text.substr(0, character.size);
        text.remove_prefix(character.size);
    }
    shortened += "…";
    for (; open > 0; --open) {
        AppendUtf8(shortened, EndOfIsolate);
    }
    return shortened;
}

}
