#include "portable/XmlParser.h"

#include "base/Utf8.h"
#include "portable/PlainXml.h"

#include <cstddef>

namespace tempodial {

namespace {

constexpr std::size_t LongestDocument = std::size_t { 16 } << 20;

/// True when a text begins as a document does. By other beginnings a parser would know UTF-16, or a second byte-order
/// mark.
bool BeginsInUtf8(std::string_view text)
{
    constexpr std::string_view Beginnings = "< \t\r\n";
    return text.size() > 1 && Beginnings.find(text[0]) != std::string_view::npos && text[1] != '\0';
}

}

bool XmlParser::Parse(std::string_view text, XmlTree& tree)
{
    tree.Clear();
    if (text.starts_with(Utf8ByteOrderMark)) {
        text.remove_prefix(Utf8ByteOrderMark.size());
    }
    if (text.size() > LongestDocument || !BeginsInUtf8(text)) {
        return false;
    }
    try {
        if (PlainXml(text, tree).Read(DeepestElement)) {
            return true;
        }
        tree.Clear();
        const bool isRead = Read(text, tree);
        if (!isRead) {
            tree.Clear();
        }
        return isRead;
    } catch (...) {
        tree.Clear();
        throw;
    }
}

}
