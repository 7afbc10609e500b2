#include "host/settings/TomlNesting.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr int Deepest = 32;

/// The length of the text in quotation marks that a text begins with; one line's ends with the line at the latest.
std::size_t QuotedLength(std::string_view text)
{
    const char quote = text.front();
    const std::size_t marks = text.starts_with(quote == '"' ? R"(""")" : "'''") ? 3 : 1;
    for (std::size_t at = marks; at < text.size(); ++at) {
        if (quote == '"' && text[at] == '\\') {
            ++at;
        } else if (marks == 1 && (text[at] == quote || text[at] == '\n')) {
            return text[at] == quote ? at + 1 : at;
        } else if (marks == 3 && text.substr(at).starts_with(text.substr(0, marks))) {
            // Two more marks may stand before those that end it.
            const auto behind = text.find_first_not_of(quote, at);
            return std::min({ behind, at + marks + 2, text.size() });
        }
    }
    return text.size();
}

}

std::optional<std::size_t> LineNestedTooDeeply(std::string_view text)
{
    std::size_t line = 1;
    int brackets = 0;
    int parts = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        switch (text[at]) {
        case '"':
        case '\'': {
            const auto quoted = text.substr(at, QuotedLength(text.substr(at)));
            line += static_cast<std::size_t>(std::count(quoted.begin(), quoted.end(), '\n'));
            at += quoted.size() - 1;
            break;
        }
        case '#':
            at = std::min(text.find('\n', at), text.size()) - 1;
            break;
        case '\n':
            ++line;
            parts = 0;
            break;
        case '=':
        case ',':
            parts = 0;
            break;
        case '.':
            ++parts;
            break;
        case '[':
        case '{':
            ++brackets;
            break;
        case ']':
        case '}':
            brackets = std::max(brackets - 1, 0);
            break;
        default:
            break;
        }
        if (brackets > Deepest || parts > Deepest) {
            return line;
        }
    }
    return std::nullopt;
}

}
