#include "addin/win32/MsxmlParser.h"

#include "addin/base/AutomationValue.h"
#include "addin/base/Msxml.h"
#include "addin/base/SystemText.h"
#include "base/Failure.h"
#include "base/Utf8.h"

#include <string>

namespace tempodial {

namespace {

constexpr CLSID ParserClass = { 0x88D96A05, 0xF192, 0x11D4, { 0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5 } };

/// A text without its XML declaration, which may name another encoding than the one that it is in here.
std::string_view WithoutDeclaration(std::string_view text)
{
    constexpr std::string_view Beginning = "<?xml";
    constexpr std::string_view Blanks = " \t\r\n";
    const bool hasOne = text.starts_with(Beginning) && text.size() > Beginning.size()
        && Blanks.find(text[Beginning.size()]) != std::string_view::npos;
    const auto end = hasOne ? text.find("?>") : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 2);
}

/// True when a document type is declared in front of the root.
bool DeclaresType(std::string_view text)
{
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
        const auto rest = text.substr(at);
        const auto* const ending = rest.starts_with("<!--") ? "-->" : rest.starts_with("<?") ? "?>" : nullptr;
        if (ending == nullptr) {
            return rest.starts_with("<!");
        }
        at = text.find(ending, at);
    }
    return false;
}

std::string TextOfNode(IXMLDOMNode& node)
{
    AutomationValue value;
    return SUCCEEDED(node.get_nodeValue(value.Put())) ? value.ToText() : std::string();
}

std::string NameOfNode(IXMLDOMNode& node)
{
    BSTR name = nullptr;
    const auto result = node.get_nodeName(&name);
    auto text = SUCCEEDED(result) ? FromBstr(name) : std::string();
    SysFreeString(name);
    return text;
}

}

/// The document that reads the texts.
struct MsxmlParser::Document
{
    ComRef<IXMLDOMDocument> document;

    Document()
    {
        if (FAILED(
                CoCreateInstance(ParserClass, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument, document.PutAny()))) {
            throw Failure(Error::CannotCreateObject);
        }
        document->put_async(VARIANT_FALSE);
        document->put_validateOnParse(VARIANT_FALSE);
        document->put_resolveExternals(VARIANT_FALSE);
        document->put_preserveWhiteSpace(VARIANT_TRUE);
    }

    /// Copies what stands below a node; false when it is nested too deeply.
    static bool CopyBelow(IXMLDOMNode& node, XmlTree& tree, XmlTree::Index place, int depth)
    {
        ComRef<IXMLDOMNode> child;
        for (node.get_firstChild(child.Put()); child;) {
            if (!Copy(*child.Get(), tree, place, depth)) {
                return false;
            }
            ComRef<IXMLDOMNode> next;
            child->get_nextSibling(next.Put());
            child = std::move(next);
        }
        return true;
    }

    static bool Copy(IXMLDOMNode& node, XmlTree& tree, XmlTree::Index place, int depth)
    {
        DOMNodeType type = NODE_INVALID;
        node.get_nodeType(&type);
        if (type == NODE_TEXT || type == NODE_CDATA_SECTION) {
            // Blanks around the root are no text of the document.
            if (place != XmlTree::Document) {
                tree.AddText(place, TextOfNode(node));
            }
            return true;
        }
        if (type != NODE_ELEMENT) {
            return true;
        }
        if (depth >= DeepestElement) {
            return false;
        }
        const auto element = tree.AddElement(place, NameOfNode(node));
        CopyAttributes(node, tree, element);
        return CopyBelow(node, tree, element, depth + 1);
    }

    static void CopyAttributes(IXMLDOMNode& node, XmlTree& tree, XmlTree::Index element)
    {
        ComRef<IXMLDOMNamedNodeMap> attributes;
        if (node.get_attributes(attributes.Put()) != S_OK) {
            return;
        }
        LONG count = 0;
        attributes->get_length(&count);
        for (LONG index = 0; index < count; ++index) {
            ComRef<IXMLDOMNode> attribute;
            if (attributes->get_item(index, attribute.Put()) == S_OK) {
                tree.AddAttribute(element, NameOfNode(*attribute.Get()), TextOfNode(*attribute.Get()));
            }
        }
    }
};

MsxmlParser::MsxmlParser() = default;
MsxmlParser::~MsxmlParser() = default;

bool MsxmlParser::Read(std::string_view text, XmlTree& tree)
{
    if (!IsUtf8(text) || text.find('\0') != std::string_view::npos || DeclaresType(text)) {
        return false;
    }
    if (!mDocument) {
        mDocument = std::make_unique<Document>();
    }
    const auto source = AutomationValue(std::string(WithoutDeclaration(text)));
    VARIANT_BOOL isRead = VARIANT_FALSE;
    const auto result = mDocument->document->loadXML(source.Get().bstrVal, &isRead);
    return result == S_OK && isRead != VARIANT_FALSE
        && Document::CopyBelow(*mDocument->document.Get(), tree, XmlTree::Document, 0);
}

}
