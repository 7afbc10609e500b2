#pragma once

#include "base/Ref.h"

#include <string>
#include <string_view>

namespace tempodial {

/// An element of an XML document.
class XmlNode
{
public:
    virtual ~XmlNode() = default;

    /// The first element on a path of element names with "/" between, seen from here; nothing when there is none.
    virtual Ref<XmlNode> SelectSingleNode(std::string_view path) = 0;
    /// All text below, entities resolved, comments left out.
    virtual std::string Text() = 0;
    /// Puts a text in the place of all that stands below.
    virtual void SetText(const std::string& text) = 0;
};

/// An XML document; paths are seen from above its root, whose name they begin with.
class XmlDocument : public XmlNode
{
public:
    /// Takes a text in the place of what it held; false, and empty, when the text isn't a well-formed document.
    virtual bool LoadXML(const std::string& text) = 0;
    /// True when it holds no document.
    virtual bool IsEmpty() const = 0;
    /// The document as text, "" when it is empty.
    virtual std::string Xml() = 0;
};

/// Makes documents.
class XmlFactory
{
public:
    virtual ~XmlFactory() = default;

    virtual Ref<XmlDocument> NewDocument() = 0;
};

}
