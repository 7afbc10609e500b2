#include "base/Text.h"
#include "engine/reports/HtmlText.h"
#include "fuzz/FuzzTarget.h"

namespace tempodial {

namespace {

constexpr std::string_view LinkBegin = "<a href='";
constexpr std::string_view LinkEnd = "</a>";

/// A text without the links in it, whose ends are checked.
std::string WithoutLinks(const std::string& html)
{
    std::string text;
    std::size_t at = 0;
    for (auto begin = html.find(LinkBegin); begin != std::string::npos; begin = html.find(LinkBegin, at)) {
        text += html.substr(at, begin - at);
        const auto shown = html.find('>', begin) + 1;
        const auto end = html.find(LinkEnd, shown);
        Hold(end != std::string::npos, "a link ends");
        const auto address = html.substr(shown, end - shown);
        const auto target = Replace(address, "'", "&#39;");
        Hold(html.substr(begin, shown - begin) == std::string(LinkBegin) + target + "'>", "a link leads where it says");
        Hold(address.find_first_of("<>\" \t\r\n") == std::string::npos, "an address holds no marks");
        text += address;
        at = end + LinkEnd.size();
    }
    return text + html.substr(at);
}

/// A caption becomes HTML, and its addresses links.
void EscapeAndLink(std::string_view input)
{
    static HtmlText html(MakeRef<Platform>(), MakeRef<TempodialDebugLog>(MakeRef<Platform>()));
    std::string escaped(input);
    Hold(html.HTMLEscape(escaped) == escaped, "the argument is escaped, too");
    auto twice = escaped;
    html.HTMLEscape(twice);
    Hold(twice == escaped, "a second escaping changes nothing");
    Hold(escaped.find_first_of("<>") == std::string::npos, "no bracket is left");
    const auto linked = html.HTMLMogrify(escaped);
    Hold(WithoutLinks(linked) == escaped, "links add nothing else");
}

}

TEMPODIAL_FUZZ_TARGET(HtmlText, EscapeAndLink)

}
