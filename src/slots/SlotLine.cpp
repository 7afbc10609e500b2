#include "slots/SlotLine.h"

#include "base/Utf8.h"

namespace tempodial {

namespace {

void AppendNumber(std::string& line, char32_t character)
{
    line += "&#" + std::to_string(std::uint32_t { character }) + ";";
}

void AppendEscaped(std::string& line, std::string_view text)
{
    for (std::size_t offset = 0; offset < text.size();) {
        const auto character = DecodeUtf8(text, offset);
        offset += character.size;
        switch (character.code) {
        case '&':
            line += "&amp;";
            break;
        case '<':
            line += "&lt;";
            break;
        case '>':
            line += "&gt;";
            break;
        case '\t':
        case '\n':
        case '\r':
            AppendNumber(line, character.code);
            break;
        default:
            if (character.size > 1) {
                AppendNumber(line, character.code);
            } else {
                line += static_cast<char>(character.code);
            }
        }
    }
}

}

SlotLine::SlotLine(std::int64_t start, std::int64_t end)
{
    Node("StartTime", std::to_string(start));
    Node("EndTime", std::to_string(end));
}

SlotLine& SlotLine::Application(int index)
{
    return Node("AppType", std::to_string(index));
}

SlotLine& SlotLine::Node(std::string_view name, std::string_view text)
{
    mNodes.append("<").append(name).append(">");
    AppendEscaped(mNodes, text);
    mNodes.append("</").append(name).append(">");
    return *this;
}

SlotLine& SlotLine::Continuation()
{
    return Node("Continuation", "1");
}

SlotLine& SlotLine::Detail()
{
    return Node("Detail", "1");
}

std::string SlotLine::Text() const
{
    return "<slot>" + mNodes + "</slot>";
}

}
