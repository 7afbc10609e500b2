#pragma once

#include "platform/system/XmlDocument.h"
#include "portable/XmlParser.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace tempodial {

/// Makes documents that are read by one parser and held in small trees.
class TreeXmlFactory : public XmlFactory
{
public:
    explicit TreeXmlFactory(std::shared_ptr<XmlParser> parser)
        : mParser(std::move(parser))
    {
    }

    Ref<XmlDocument> NewDocument() override;

private:
    std::shared_ptr<XmlParser> mParser;
};

/// An XML document. Comments and processing instructions are dropped when it is changed; an element that was selected
/// stays as it was when the document takes another text.
class TreeXmlDocument : public XmlDocument
{
public:
    explicit TreeXmlDocument(std::shared_ptr<XmlParser> parser);

    Ref<XmlNode> SelectSingleNode(std::string_view path) override;
    std::string Text() override;
    /// Fails (438): a document has a root, not a text.
    void SetText(const std::string& text) override;
    bool LoadXML(const std::string& text) override;
    bool IsEmpty() const override;
    /// The text that was loaded, without a byte-order mark, as long as nothing was changed.
    std::string Xml() override;

private:
    struct Content;
    class Node;

    std::shared_ptr<XmlParser> mParser;
    std::shared_ptr<Content> mContent;
};

}
