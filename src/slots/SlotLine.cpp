#include "slots/SlotLine.h"

namespace tempodial {

namespace {

void AppendEscaped(std::string& line, std::string_view text)
{
    for (const char character : text) {
        switch (character) {
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
            line += "&#" + std::to_string(int { character }) + ";";
            break;
        default:
            line += character;
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
