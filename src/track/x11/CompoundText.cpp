#include "track/x11/CompoundText.h"

#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iconv.h>
#include <optional>
#include <vector>

namespace tempodial {

namespace {

constexpr char Escape = '\x1b';
constexpr char ControlSequence = '\x9b';
constexpr char StartOfText = '\x02';
constexpr unsigned char HighBit = 0x80;
constexpr unsigned char FirstOfGraphic = 0x20;

/// A set of characters, by the letter that ends its escape sequence.
struct CharacterSet
{
    enum class Kind { Of94, Of96, Of94Pairs };

    Kind kind;
    char letter;
    /// As iconv calls an encoding that has it in its upper half; nothing for ASCII.
    const char* encoding;
    /// What stands in front of each character there.
    std::string_view prefix;
};

using Kind = CharacterSet::Kind;

/// An encoding by the name that segments have for it, and iconv.
struct NamedEncoding
{
    std::string_view name;
    const char* encoding;
};

constexpr std::array NamedEncodings {
    NamedEncoding { "iso8859-14", "ISO-8859-14" },
    NamedEncoding { "iso8859-15", "ISO-8859-15" },
    NamedEncoding { "koi8-r", "KOI8-R" },
    NamedEncoding { "koi8-u", "KOI8-U" },
    NamedEncoding { "microsoft-cp1251", "CP1251" },
    NamedEncoding { "tis620-0", "TIS-620" },
    NamedEncoding { "big5-0", "BIG5" },
    NamedEncoding { "gbk-0", "GBK" },
};

constexpr std::array Sets {
    CharacterSet { Kind::Of94, 'B', nullptr, "" },
    CharacterSet { Kind::Of94, 'J', nullptr, "" },
    CharacterSet { Kind::Of94, 'I', "EUC-JP", "\x8e" },
    CharacterSet { Kind::Of96, 'A', "ISO-8859-1", "" },
    CharacterSet { Kind::Of96, 'B', "ISO-8859-2", "" },
    CharacterSet { Kind::Of96, 'C', "ISO-8859-3", "" },
    CharacterSet { Kind::Of96, 'D', "ISO-8859-4", "" },
    CharacterSet { Kind::Of96, 'F', "ISO-8859-7", "" },
    CharacterSet { Kind::Of96, 'G', "ISO-8859-6", "" },
    CharacterSet { Kind::Of96, 'H', "ISO-8859-8", "" },
    CharacterSet { Kind::Of96, 'L', "ISO-8859-5", "" },
    CharacterSet { Kind::Of96, 'M', "ISO-8859-9", "" },
    CharacterSet { Kind::Of96, 'V', "ISO-8859-10", "" },
    CharacterSet { Kind::Of96, 'Y', "ISO-8859-13", "" },
    CharacterSet { Kind::Of96, '_', "ISO-8859-14", "" },
    CharacterSet { Kind::Of96, 'b', "ISO-8859-15", "" },
    CharacterSet { Kind::Of96, 'f', "ISO-8859-16", "" },
    CharacterSet { Kind::Of94Pairs, 'A', "GB2312", "" },
    CharacterSet { Kind::Of94Pairs, 'B', "EUC-JP", "" },
    CharacterSet { Kind::Of94Pairs, 'C', "EUC-KR", "" },
    CharacterSet { Kind::Of94Pairs, 'D', "EUC-JP", "\x8f" },
};

/// Bytes of an encoding as UTF-8; empty when iconv doesn't know it, and as far as they are right.
std::string Converted(const char* encoding, std::string bytes)
{
    auto* const converter = ::iconv_open("UTF-8", encoding);
    if (converter == reinterpret_cast<iconv_t>(-1)) { // NOLINT(performance-no-int-to-ptr)
        return {};
    }
    constexpr std::size_t MostBytesOfCharacter = 4;
    std::string converted(bytes.size() * MostBytesOfCharacter, '\0');
    auto* from = bytes.data();
    auto left = bytes.size();
    auto* to = converted.data();
    auto room = converted.size();
    ::iconv(converter, &from, &left, &to, &room);
    ::iconv_close(converter);
    converted.resize(converted.size() - room);
    return converted;
}

/// A text while it is read.
class CompoundTextReading
{
public:
    explicit CompoundTextReading(std::string_view text)
        : mRest(text)
    {
    }

    std::string All()
    {
        while (!mRest.empty()) {
            if (mRest.front() == Escape) {
                mRest.remove_prefix(1);
                ReadEscape();
            } else if (mRest.front() == ControlSequence) {
                // It only says in which direction the text runs.
                mRest.remove_prefix(std::min(mRest.find(']'), mRest.size() - 1) + 1);
            } else {
                ReadCharacters();
            }
        }
        return mResult;
    }

private:
    char TakeByte()
    {
        if (mRest.empty()) {
            return '\0';
        }
        const char byte = mRest.front();
        mRest.remove_prefix(1);
        return byte;
    }

    void ReadEscape()
    {
        switch (const char first = TakeByte()) {
        case '(':
            mLeft = Find(Kind::Of94, TakeByte());
            break;
        case ')':
            mRight = Find(Kind::Of94, TakeByte());
            break;
        case '-':
            mRight = Find(Kind::Of96, TakeByte());
            break;
        case '$': {
            const char side = TakeByte();
            (side == '(' ? mLeft : mRight) = Find(Kind::Of94Pairs, TakeByte());
            break;
        }
        case '%':
            ReadOtherCoding();
            break;
        default:
            // Intermediate bytes of a sequence that nobody knows, and its last one.
            for (auto byte = first; byte >= ' ' && byte < '0'; byte = TakeByte()) { }
        }
    }

    void ReadOtherCoding()
    {
        const char kind = TakeByte();
        if (kind == 'G') {
            constexpr std::string_view Back = "\x1b%@";
            const auto end = std::min(mRest.find(Back), mRest.size());
            AddValid(mRest.substr(0, end));
            mRest.remove_prefix(std::min(end + Back.size(), mRest.size()));
        } else if (kind == '/') {
            TakeByte();
            ReadSegment();
        }
    }

    /// Text in an encoding that has a name: its length, the name, and the bytes.
    void ReadSegment()
    {
        constexpr std::size_t Base = 128;
        const auto digit = [this] {
            const auto byte = static_cast<unsigned char>(TakeByte());
            return static_cast<std::size_t>(byte < HighBit ? 0 : byte - HighBit);
        };
        const auto high = digit();
        const auto low = digit();
        const auto length = std::min(high * Base + low, mRest.size());
        const auto segment = mRest.substr(0, length);
        mRest.remove_prefix(length);
        const auto end = std::min(segment.find(StartOfText), segment.size());
        // Any name is no name for iconv: it is the window's word.
        const auto* const known = std::find_if(NamedEncodings.begin(), NamedEncodings.end(),
            [&](const auto& named) { return named.name == segment.substr(0, end); });
        if (known != NamedEncodings.end() && end < segment.size()) {
            mResult += Converted(known->encoding, std::string(segment.substr(end + 1)));
        }
    }

    void ReadCharacters()
    {
        const auto isUpper = [](char byte) { return static_cast<unsigned char>(byte) >= HighBit; };
        const bool isRight = isUpper(mRest.front());
        std::size_t size = 0;
        while (size < mRest.size() && isUpper(mRest[size]) == isRight && mRest[size] != Escape
            && mRest[size] != ControlSequence) {
            ++size;
        }
        AddRun(mRest.substr(0, size), isRight ? mRight : mLeft);
        mRest.remove_prefix(size);
    }

    void AddRun(std::string_view run, const std::optional<CharacterSet>& set)
    {
        if (!set) {
            return;
        }
        std::string bytes;
        const std::size_t size = set->kind == Kind::Of94Pairs ? 2 : 1;
        std::size_t at = 0;
        while (at < run.size()) {
            const auto lower = static_cast<unsigned char>(run[at]) & ~HighBit;
            // Controls belong to no set, and blanks to none of 94.
            const bool isOfNone = lower < FirstOfGraphic || (lower == ' ' && set->kind != Kind::Of96);
            if (isOfNone || set->encoding == nullptr) {
                bytes += static_cast<char>(lower);
                ++at;
            } else {
                bytes += set->prefix;
                for (const auto end = std::min(at + size, run.size()); at < end; ++at) {
                    bytes += static_cast<char>(static_cast<unsigned char>(run[at]) | HighBit);
                }
            }
        }
        mResult += set->encoding == nullptr ? bytes : Converted(set->encoding, std::move(bytes));
    }

    void AddValid(std::string_view text)
    {
        for (std::size_t at = 0; at < text.size();) {
            const auto character = DecodeUtf8(text, at);
            if (character.isValid) {
                mResult += text.substr(at, character.size);
            }
            at += character.size;
        }
    }

    static std::optional<CharacterSet> Find(Kind kind, char letter)
    {
        const auto* const found = std::find_if(
            Sets.begin(), Sets.end(), [&](const auto& set) { return set.kind == kind && set.letter == letter; });
        return found == Sets.end() ? std::nullopt : std::optional(*found);
    }

    std::string_view mRest;
    std::optional<CharacterSet> mLeft = Find(Kind::Of94, 'B');
    std::optional<CharacterSet> mRight = Find(Kind::Of96, 'A');
    std::string mResult;
};

}

std::string FromCompoundText(std::string_view text)
{
    return CompoundTextReading(text).All();
}

std::string FromLatin1(std::string_view text)
{
    std::string converted;
    for (const char byte : text) {
        AppendUtf8(converted, static_cast<unsigned char>(byte));
    }
    return converted;
}

}
