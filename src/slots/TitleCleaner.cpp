#include "slots/TitleCleaner.h"

#include "base/Utf8.h"
#include "slots/PlainText.h"

#include <algorithm>
#include <iterator>

namespace tempodial {

namespace {

constexpr std::string_view SuffixDashes[] { " - ", " \u2014 ", " \u2013 ", " | ", " \u00b7 " };

bool IsDigits(std::string_view text)
{
    return !text.empty()
        && std::all_of(text.begin(), text.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// True for a mark that turns while something runs, or that says that something was changed.
bool IsMark(char32_t code)
{
    constexpr char32_t Marks[] { U'*', 0x2022, 0x25cf, 0x25cb, 0x25c9, 0x23fa, 0x2217, 0x2726, 0x2731, 0x2733, 0x2736,
        0x273b, 0x273d, 0x2722, 0x25d0, 0x25d1, 0x25d2, 0x25d3, 0x2605, 0x26a0, 0x1f534 };
    constexpr char32_t FirstBraille = 0x2800;
    constexpr char32_t LastBraille = 0x28ff;
    return (code >= FirstBraille && code <= LastBraille)
        || std::find(std::begin(Marks), std::end(Marks), code) != std::end(Marks);
}

/// Length of a counter such as "(3)" or "[99+]" at the beginning, 0 when there is none.
std::size_t CounterLength(std::string_view text)
{
    if (text.empty() || (text.front() != '(' && text.front() != '[')) {
        return 0;
    }
    const auto end = text.find(text.front() == '(' ? ')' : ']');
    if (end == std::string_view::npos) {
        return 0;
    }
    constexpr std::size_t MostDigits = 5;
    auto number = text.substr(1, end - 1);
    if (number.ends_with('+')) {
        number.remove_suffix(1);
    }
    return IsDigits(number) && number.size() <= MostDigits ? end + 1 : 0;
}

std::string_view WithoutLeadingMarks(std::string_view text)
{
    for (;;) {
        text = Trimmed(text);
        if (text.empty()) {
            return text;
        }
        const auto first = DecodeUtf8(text, 0);
        // What stands alone is all that the title says.
        if (IsMark(first.code) && first.size < text.size()) {
            text.remove_prefix(first.size);
        } else if (const auto counter = CounterLength(text); counter > 0 && counter < text.size()) {
            text.remove_prefix(counter);
        } else {
            return text;
        }
    }
}

std::string_view WithoutTrailingMarks(std::string_view text)
{
    constexpr std::string_view Ends[] { "[*]", "*", "\u25cf", "\u2022", " [modified]", " [+]", " +" };
    for (bool isChanged = true; isChanged;) {
        isChanged = false;
        text = Trimmed(text);
        for (const auto end : Ends) {
            if (text.size() > end.size() && text.ends_with(end)) {
                text.remove_suffix(end.size());
                isChanged = true;
            }
        }
        if (const auto open = text.find_last_of("(["); open != std::string_view::npos && open > 0) {
            const auto counter = CounterLength(text.substr(open));
            if (counter > 0 && open + counter == text.size() && text[open - 1] == ' ') {
                text.remove_suffix(counter);
                isChanged = true;
            }
        }
    }
    return text;
}

/// Where the last dash of a title begins and ends, or its end twice.
std::pair<std::size_t, std::size_t> LastDash(std::string_view text)
{
    std::pair<std::size_t, std::size_t> last { text.size(), text.size() };
    bool isFound = false;
    for (const auto dash : SuffixDashes) {
        const auto at = text.rfind(dash);
        if (at != std::string_view::npos && (!isFound || at > last.first)) {
            last = { at, at + dash.size() };
            isFound = true;
        }
    }
    return last;
}

bool IsSuffix(std::string_view text, std::string_view suffix)
{
    if (suffix.ends_with('*')) {
        return text.starts_with(suffix.substr(0, suffix.size() - 1));
    }
    return text == suffix;
}

/// The suffix that a text is, empty when it is none.
std::string SuffixThatIs(std::string_view text, const Program& program)
{
    const bool isKnown = text == program.name
        || std::any_of(program.suffixes.begin(), program.suffixes.end(),
            [text](const auto& suffix) { return IsSuffix(text, suffix); });
    return isKnown ? std::string(text) : "";
}

/// Cuts a suffix in brackets, such as "[Compatibility Mode]"; true when there was one.
bool CutBracketed(std::string_view& text, const Program& program)
{
    for (const auto& suffix : program.suffixes) {
        const bool isBracketed = suffix.starts_with('[') || suffix.starts_with('(');
        if (isBracketed && text.size() > suffix.size() && text.ends_with(suffix)) {
            text = Trimmed(text.substr(0, text.size() - suffix.size()));
            return true;
        }
    }
    return false;
}

/// Cuts one suffix, or a prefix before a bar; empty when there is none, else what was cut.
std::string CutSuffix(std::string_view& text, const Program& program)
{
    if (auto whole = SuffixThatIs(text, program); !whole.empty()) {
        text = {};
        return whole;
    }
    const auto [begin, end] = LastDash(text);
    if (auto suffix = SuffixThatIs(Trimmed(text.substr(end)), program); !suffix.empty()) {
        text = Trimmed(text.substr(0, begin));
        return suffix;
    }
    constexpr std::string_view Bar = " | ";
    const auto bar = text.find(Bar);
    if (bar != std::string_view::npos && !SuffixThatIs(text.substr(0, bar), program).empty()) {
        const auto prefix = std::string(text.substr(0, bar));
        text = Trimmed(text.substr(bar + Bar.size()));
        return prefix;
    }
    return "";
}

/// Cuts the number of further pages that a browser puts behind the first.
std::string_view WithoutMorePages(std::string_view text)
{
    constexpr std::string_view And = " and ";
    const auto at = text.rfind(And);
    if (at == std::string_view::npos) {
        return text;
    }
    const auto rest = text.substr(at + And.size());
    const auto number = rest.substr(0, rest.find(' '));
    const auto words = rest.substr(number.size());
    return IsDigits(number) && (words == " more pages" || words == " more page") ? text.substr(0, at) : text;
}

bool IsLetterOrDigit(char letter)
{
    return !IsAscii(letter) || (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'z')
        || (letter >= 'A' && letter <= 'Z');
}

/// True for a site without a scheme, such as "example.com" or "localhost:8080", also behind a bracket or an account.
bool IsSite(std::string_view text)
{
    text.remove_prefix(text.rfind('@') + 1);
    while (!text.empty() && !IsLetterOrDigit(text.front())) {
        text.remove_prefix(1);
    }
    const auto host = text.substr(0, text.find(':'));
    if (host.empty() || !std::all_of(host.begin(), host.end(), [](char letter) {
            return IsLetterOrDigit(letter) || letter == '.' || letter == '-' || letter == '_';
        })) {
        return false;
    }
    if (host.size() < text.size()) {
        return !IsDigits(host) && IsDigits(text.substr(host.size() + 1));
    }
    constexpr std::ptrdiff_t PointsOfNumbers = 3;
    const auto point = host.rfind('.');
    const auto domain = point == std::string_view::npos ? std::string_view() : host.substr(point + 1);
    const bool isDomain = domain.size() > 1 && domain.find_first_of("0123456789") == std::string_view::npos;
    return (isDomain && point > 0) || std::count(host.begin(), host.end(), '.') == PointsOfNumbers;
}

/// A word without what addresses carry besides: an account in front of the host, a query, a fragment.
std::string WithoutQuery(std::string_view word)
{
    const auto scheme = word.find("://");
    const auto cut = word.find_first_of("?#");
    const auto start = word.substr(0, cut);
    const auto slash = start.find('/');
    const auto point = start.find('.');
    // Behind the mark that ends a question nothing follows.
    const bool hasMore = cut != std::string_view::npos && cut + 1 < word.size();
    const bool isAddress = (hasMore && IsSite(start.substr(0, slash))) || scheme != std::string_view::npos
        || start.starts_with("www.") || (slash != std::string_view::npos && point < slash && point > 0);
    if (!isAddress) {
        return std::string(word);
    }
    std::string result(start);
    if (scheme != std::string_view::npos && scheme < start.size()) {
        const auto host = scheme + 3;
        const auto account = result.find('@', host);
        if (account != std::string::npos && account < result.find('/', host)) {
            result.erase(host, account + 1 - host);
        }
    }
    return result;
}

std::string WithoutQueries(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const auto blank = std::min(text.find(' '), text.size());
        result += WithoutQuery(text.substr(0, blank));
        text.remove_prefix(blank);
        if (!text.empty()) {
            result += ' ';
            text.remove_prefix(1);
        }
    }
    return result;
}

/// Cuts the mark of change that editors put between a file and its folder in brackets.
std::string WithoutInnerMark(std::string text)
{
    constexpr std::string_view Marks[] { " \u2022 (", " \u25cf (", " + (", " * (" };
    for (const auto mark : Marks) {
        if (const auto at = text.rfind(mark); at != std::string::npos && at > 0 && text.ends_with(')')) {
            text.erase(at, mark.size() - std::string_view(" (").size());
        }
    }
    return text;
}

}

TitleCleaner::Cleaned TitleCleaner::Clean(std::string_view title, const Program& program)
{
    const auto plain = PlainText(title);
    Cleaned cleaned;
    std::string_view text = plain;
    for (bool isChanged = true; isChanged;) {
        text = WithoutTrailingMarks(WithoutLeadingMarks(text));
        isChanged = CutBracketed(text, program);
        if (auto suffix = CutSuffix(text, program); !suffix.empty()) {
            isChanged = true;
            if (cleaned.suffix.empty()) {
                cleaned.suffix = std::move(suffix);
            }
        }
    }
    if (program.sort == ProgramSort::Browser) {
        text = WithoutMorePages(text);
    }
    const auto& nothing = program.emptyTitles;
    cleaned.isNothing = std::find(nothing.begin(), nothing.end(), text) != nothing.end();
    cleaned.text = WithoutInnerMark(WithoutQueries(text));
    return cleaned;
}

}
