#include "slots/PrivateMarks.h"

#include "base/Text.h"
#include "base/Utf8.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace tempodial {

namespace {

/// What browsers put into the titles of private windows.
constexpr std::string_view PrivateMarks[] { "private browsing", "inprivate", "incognito", "private window",
    "private mode", "privater modus", "privates fenster", "inkognito", "navigation priv\u00e9e",
    "fen\u00eatre priv\u00e9e", "navegaci\u00f3n privada", "ventana privada", "inc\u00f3gnito", "navigazione anonima",
    "finestra anonima", "navega\u00e7\u00e3o privativa", "navega\u00e7\u00e3o privada",
    "navega\u00e7\u00e3o an\u00f4nima", "an\u00f3nima", "priv\u00e9navigatie", "priv\u00e9venster", "tryb prywatny",
    "przegl\u0105danie prywatne", "privat surfning", "privat browsing", "privat nettlesing", "yksityinen selaus",
    "anonymn\u00ed prohl\u00ed\u017een\u00ed", "anonym\u00edn\u00ed", "priv\u00e1t b\u00f6ng\u00e9sz\u00e9s",
    "navigare privat\u0103", "gizli gezinti", "gizli pencere",
    "\u03b9\u03b4\u03b9\u03c9\u03c4\u03b9\u03ba\u03ae \u03c0\u03b5\u03c1\u03b9\u03ae\u03b3\u03b7\u03c3\u03b7",
    "\u043f\u0440\u0438\u0432\u0430\u0442\u043d\u044b\u0439 \u043f\u0440\u043e\u0441\u043c\u043e\u0442\u0440",
    "\u043f\u0440\u0438\u0432\u0430\u0442\u043d\u043e\u0435 \u043e\u043a\u043d\u043e",
    "\u0438\u043d\u043a\u043e\u0433\u043d\u0438\u0442\u043e",
    "\u043f\u0440\u0438\u0432\u0430\u0442\u043d\u0438\u0439 \u043f\u0435\u0440\u0435\u0433\u043b\u044f\u0434",
    "\u30d7\u30e9\u30a4\u30d9\u30fc\u30c8\u30d6\u30e9\u30a6\u30b8\u30f3\u30b0", "\u30b7\u30fc\u30af\u30ec\u30c3\u30c8",
    "\u9690\u79c1\u6d4f\u89c8", "\u9690\u79c1\u7a97\u53e3", "\u65e0\u75d5", "\u96b1\u79c1\u700f\u89bd", "\u7121\u75d5",
    "\uc0ac\uc0dd\ud65c \ubcf4\ud638", "\uc2dc\ud06c\ub9bf" };

constexpr std::string_view MarkDashes[] { " - ", " \u2014 ", " \u2013 " };

struct BracketPair
{
    std::string_view open, close;
};

constexpr BracketPair MarkBrackets[] { { "(", ")" }, { "[", "]" }, { "\uff08", "\uff09" }, { "\u3010", "\u3011" } };

/// True for a character of a word; scripts that write no blanks have none.
bool IsInWord(char32_t code)
{
    constexpr char32_t FirstLetter = 0xc0;
    constexpr char32_t FirstSign = 0x2000;
    const bool isAscii = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9');
    return isAscii || code == '_' || (code >= FirstLetter && code < FirstSign);
}

/// True for a part of a text at whose ends no word goes on.
bool IsAtWordLimits(std::string_view text, std::size_t at, std::size_t size)
{
    auto before = at;
    while (before > 0 && IsUtf8Tail(text[--before])) { }
    const bool goesOnBefore = at > 0 && IsInWord(DecodeUtf8(text, before).code);
    const bool goesOnBehind = at + size < text.size() && IsInWord(DecodeUtf8(text, at + size).code);
    return !goesOnBefore && !goesOnBehind;
}

bool IsInBrackets(std::string_view text, std::size_t at)
{
    return std::any_of(std::begin(MarkBrackets), std::end(MarkBrackets), [text, at](const auto& pair) {
        const auto open = text.substr(0, at).rfind(pair.open);
        const auto close = open == std::string_view::npos ? open : text.find(pair.close, open);
        return close != std::string_view::npos && close > at;
    });
}

/// Where the part behind the last dash begins, the end when there is no dash.
std::size_t BehindLastDash(std::string_view text)
{
    std::size_t last = 0;
    for (const auto dash : MarkDashes) {
        if (const auto at = text.rfind(dash); at != std::string_view::npos) {
            last = std::max(last, at + dash.size());
        }
    }
    return last == 0 ? text.size() : last;
}

}

bool IsPrivateWindow(std::string_view title, const Program& program)
{
    const bool isBrowser = program.sort == ProgramSort::Browser;
    if (!isBrowser && !program.isUnknown) {
        return false;
    }
    const auto text = Fold(title);
    auto last = BehindLastDash(text);
    // A browser's title of one part is the browser's; that of another program is its document's.
    if (isBrowser && last == text.size()) {
        last = 0;
    }
    return std::any_of(std::begin(PrivateMarks), std::end(PrivateMarks), [&text, last](std::string_view mark) {
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
            if (IsAtWordLimits(text, at, mark.size()) && (at >= last || IsInBrackets(text, at))) {
                return true;
            }
        }
        return false;
    });
}

}
