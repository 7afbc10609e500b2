#include "portable/XmlTree.h"

namespace tempodial {

namespace {

/// Adds a text with what has a meaning in XML escaped.
void AppendEscaped(std::string_view text, bool isAttribute, std::string& xml)
{
    for (const char character : text) {
        switch (character) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '\r':
            xml += "&#13;";
            break;
        case '"':
            xml += isAttribute ? "&quot;" : "\"";
            break;
        case '\n':
            xml += isAttribute ? "&#10;" : "\n";
            break;
        case '\t':
            xml += isAttribute ? "&#9;" : "\t";
            break;
        default:
            xml += character;
        }
    }
}

}

void XmlTree::Clear()
{
    mNodes.clear();
    mAttributes.clear();
    mCharacters.clear();
    mNodes.emplace_back();
}

XmlTree::Index XmlTree::AddElement(Index parent, std::string_view name)
{
    Node node;
    node.characters = Keep(name);
    node.firstAttribute = static_cast<std::uint32_t>(mAttributes.size());
    return Add(parent, node);
}

void XmlTree::AddAttribute(Index element, std::string_view name, std::string_view value)
{
    mAttributes.push_back({ Keep(name), Keep(value) });
    ++mNodes[element].attributeCount;
}

void XmlTree::AddText(Index parent, std::string_view text)
{
    const auto last = mNodes[parent].lastChild;
    if (last != None && !mNodes[last].isElement) {
        auto& span = mNodes[last].characters;
        if (span.start + span.size == mCharacters.size()) {
            span.size += Keep(text).size;
            return;
        }
    }
    Node node;
    node.isElement = false;
    node.characters = Keep(text);
    Add(parent, node);
}

void XmlTree::RemoveChildren(Index place)
{
    mNodes[place].firstChild = None;
    mNodes[place].lastChild = None;
}

XmlTree::Index XmlTree::Find(Index place, std::string_view path) const
{
    const auto slash = path.find('/');
    const auto name = path.substr(0, slash);
    for (auto child = mNodes[place].firstChild; child != None; child = mNodes[child].next) {
        if (mNodes[child].isElement && CharactersOf(mNodes[child].characters) == name) {
            const auto found = slash == std::string_view::npos ? child : Find(child, path.substr(slash + 1));
            if (found != None) {
                return found;
            }
        }
    }
    return None;
}

XmlTree::Index XmlTree::Next(Index element) const
{
    const auto name = CharactersOf(mNodes[element].characters);
    auto next = mNodes[element].next;
    while (next != None && !(mNodes[next].isElement && CharactersOf(mNodes[next].characters) == name)) {
        next = mNodes[next].next;
    }
    return next;
}

std::string XmlTree::Text(Index place) const
{
    std::string text;
    AppendText(place, text);
    return text;
}

std::string XmlTree::Xml(Index place) const
{
    std::string xml;
    AppendXml(place, xml);
    return xml;
}

XmlTree::Index XmlTree::Add(Index parent, Node node)
{
    const auto index = static_cast<Index>(mNodes.size());
    node.parent = parent;
    const auto last = mNodes[parent].lastChild;
    (last == None ? mNodes[parent].firstChild : mNodes[last].next) = index;
    mNodes[parent].lastChild = index;
    mNodes.push_back(node);
    return index;
}

XmlTree::Span XmlTree::Keep(std::string_view characters)
{
    const Span span { static_cast<std::uint32_t>(mCharacters.size()), static_cast<std::uint32_t>(characters.size()) };
    mCharacters += characters;
    return span;
}

void XmlTree::AppendText(Index place, std::string& text) const
{
    for (auto child = mNodes[place].firstChild; child != None; child = mNodes[child].next) {
        if (mNodes[child].isElement) {
            AppendText(child, text);
        } else {
            text += CharactersOf(mNodes[child].characters);
        }
    }
}

void XmlTree::AppendXml(Index place, std::string& xml) const
{
    for (auto child = mNodes[place].firstChild; child != None; child = mNodes[child].next) {
        const auto& node = mNodes[child];
        const auto characters = CharactersOf(node.characters);
        if (!node.isElement) {
            AppendEscaped(characters, false, xml);
            continue;
        }
        xml.append("<").append(characters);
        for (std::size_t at = 0; at < node.attributeCount; ++at) {
            const auto& attribute = mAttributes[node.firstAttribute + at];
            xml.append(" ").append(CharactersOf(attribute.name)).append("=\"");
            AppendEscaped(CharactersOf(attribute.value), true, xml);
            xml += '"';
        }
        if (node.firstChild == None) {
            xml += "/>";
        } else {
            xml += '>';
            AppendXml(child, xml);
            xml.append("</").append(characters).append(">");
        }
    }
}

}
