#include "portable/TreeXml.h"

#include "base/Failure.h"
#include "base/Utf8.h"
#include "portable/XmlText.h"

#include <utility>

namespace tempodial {

namespace {

/// The XML declaration at the start of a document, with the blanks behind it.
std::string_view DeclarationOf(std::string_view source)
{
    if (!source.starts_with("<?xml")) {
        return {};
    }
    return source.substr(0, source.find_first_not_of(" \t\r\n", source.find("?>") + 2));
}

}

/// What a document holds, together with the elements selected from it.
struct TreeXmlDocument::Content
{
    std::string source;
    XmlTree tree;
    bool isChanged = false;
};

/// An element of a document.
class TreeXmlDocument::Node : public XmlNode
{
public:
    Node(std::shared_ptr<Content> content, XmlTree::Index place)
        : mContent(std::move(content))
        , mPlace(place)
    {
    }

    static Ref<XmlNode> Select(const std::shared_ptr<Content>& content, XmlTree::Index place, std::string_view path)
    {
        const auto found = content->tree.Find(place, path);
        return found == XmlTree::None ? Ref<XmlNode>() : Ref<XmlNode>(MakeRef<Node>(content, found));
    }

    Ref<XmlNode> SelectSingleNode(std::string_view path) override { return Select(mContent, mPlace, path); }
    std::string Text() override { return mContent->tree.Text(mPlace); }
    /// Fails (5) for characters that XML can't hold.
    void SetText(const std::string& text) override
    {
        if (!IsXmlText(text)) {
            throw Failure(Error::InvalidCall);
        }
        mContent->tree.RemoveChildren(mPlace);
        if (!text.empty()) {
            mContent->tree.AddText(mPlace, text);
        }
        mContent->isChanged = true;
    }

private:
    std::shared_ptr<Content> mContent;
    XmlTree::Index mPlace;
};

Ref<XmlDocument> TreeXmlFactory::NewDocument()
{
    return MakeRef<TreeXmlDocument>(mParser);
}

TreeXmlDocument::TreeXmlDocument(std::shared_ptr<XmlParser> parser)
    : mParser(std::move(parser))
    , mContent(std::make_shared<Content>())
{
}

Ref<XmlNode> TreeXmlDocument::SelectSingleNode(std::string_view path)
{
    return Node::Select(mContent, XmlTree::Document, path);
}

std::string TreeXmlDocument::Text()
{
    return mContent->tree.Text(XmlTree::Document);
}

void TreeXmlDocument::SetText(const std::string&)
{
    throw Failure(Error::NotSupported);
}

bool TreeXmlDocument::LoadXML(const std::string& text)
{
    if (mContent.use_count() > 1) {
        mContent = std::make_shared<Content>();
    }
    mContent->isChanged = false;
    mContent->source.clear();
    if (!mParser->Parse(text, mContent->tree)) {
        return false;
    }
    mContent->source = text.starts_with(Utf8ByteOrderMark) ? text.substr(Utf8ByteOrderMark.size()) : text;
    return true;
}

bool TreeXmlDocument::IsEmpty() const
{
    return mContent->tree.IsEmpty();
}

std::string TreeXmlDocument::Xml()
{
    if (!mContent->isChanged) {
        return mContent->source;
    }
    return std::string(DeclarationOf(mContent->source)) + mContent->tree.Xml(XmlTree::Document);
}

}
