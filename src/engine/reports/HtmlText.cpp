#include "engine/reports/HtmlText.h"

#include "base/Text.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

constexpr auto NotFound = std::string_view::npos;
constexpr std::string_view LinkBegin = "<a href='";
constexpr std::string_view LinkMiddle = "'>";
constexpr std::string_view LinkEnd = "</a>";

/// Where an address stands in a text, in bytes; the end is the first byte behind it.
struct Address
{
    std::size_t begin;
    std::size_t end;
};

/// Offset of the next "http://" or "https://" from an offset on.
std::size_t FindAddress(std::string_view text, std::size_t from)
{
    auto offset = text.find("http", from);
    while (offset != NotFound) {
        const auto rest = text.substr(offset);
        if (rest.starts_with("http://") || rest.starts_with("https://")) {
            return offset;
        }
        offset = text.find("http", offset + 1);
    }
    return NotFound;
}

/// Offset behind the address that begins at an offset. kept: neither a single quote nor a closing bracket ends it, but
/// the bracket that closes one straight before it does.
std::size_t EndOfAddress(std::string_view text, std::size_t begin)
{
    const auto end = std::min(text.find_first_of("\" ><\n\r\t", begin), text.size());
    const bool isBracketed = begin > 0 && text[begin - 1] == '(' && text[end - 1] == ')';
    return isBracketed ? end - 1 : end;
}

/// An address as the value of an attribute in single quotes.
std::string AttributeOf(std::string_view url)
{
    return Replace(std::string(url), "'", "&#39;");
}

std::vector<Address> FindAddresses(std::string_view text)
{
    std::vector<Address> addresses;
    for (auto begin = FindAddress(text, 0); begin != NotFound; begin = FindAddress(text, addresses.back().end)) {
        addresses.push_back({ begin, EndOfAddress(text, begin) });
    }
    return addresses;
}

}

HtmlText::HtmlText(Ref<const Platform> platform, Ref<TempodialDebugLog> log)
    : TracedObject(std::move(platform))
{
    mLog = std::move(log);
    mTraceInfo = "TDReport";
}

std::string HtmlText::HTMLEscape(std::string& text)
{
    const auto attempt = Failing("HTMLEscape ", LineShape::ColonText);
    mStage = "HTMLEscape";
    // A search for each is many times quicker than one for all.
    if (text.find('&') == NotFound && text.find('<') == NotFound && text.find('>') == NotFound) {
        return text;
    }
    const auto replace
        = [&](std::string_view find, std::string_view by) { attempt([&] { text = Replace(text, find, by); }); };
    replace("&amp;", "&");
    replace("&gt;", ">");
    replace("&lt;", "<");
    replace("&", "&amp;");
    replace(">", "&gt;");
    replace("<", "&lt;");
    return text;
}

std::string HtmlText::HTMLMogrify(std::string text)
{
    const auto attempt = Failing("HTMLMogrify ", LineShape::ColonText);
    mStage = "HTMLMogrify";
    const auto addresses = attempt.Get([&] { return FindAddresses(text); });
    if (addresses.empty()) {
        return text;
    }

    std::string linked;
    const std::string_view all = text;
    auto size = all.size();
    for (const auto& [begin, end] : addresses) {
        size += LinkBegin.size() + AttributeOf(all.substr(begin, end - begin)).size() + LinkMiddle.size()
            + LinkEnd.size();
    }
    attempt([&] { linked.reserve(size); });

    std::size_t done = 0;
    std::int64_t characters = 0;
    for (const auto& [begin, end] : addresses) {
        const auto before = all.substr(done, begin - done);
        const auto url = all.substr(begin, end - begin);
        const auto length = Length(url);
        const auto attribute = AttributeOf(url);
        // The positions are those in the text as it has become so far.
        const auto position = characters + Length(before) + 1;
        attempt.Say("found url=" + std::string(url) + " at [" + std::to_string(position) + ","
            + std::to_string(position + length) + ")");
        attempt([&] {
            linked.append(before).append(LinkBegin).append(attribute).append(LinkMiddle).append(url).append(LinkEnd);
        });
        characters = position - 1 + Length(attribute) + length
            + static_cast<std::int64_t>(LinkBegin.size() + LinkMiddle.size() + LinkEnd.size());
        done = end;
    }
    attempt([&] { linked.append(all.substr(done)); });
    return linked;
}

}
