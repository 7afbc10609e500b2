#pragma once

#include "portable/XmlTree.h"

#include <string_view>

namespace tempodial {

/// Reads texts into trees. A document type declaration is refused, and so is a document that is nested more than 64
/// deep or longer than 16 MiB.
class XmlParser
{
public:
    virtual ~XmlParser() = default;

    /// Reads a text of UTF-8, whatever encoding it says it has; false, and an empty tree, when it isn't well-formed.
    /// Throws what the tree throws, and the tree is empty then, too.
    bool Parse(std::string_view text, XmlTree& tree);

protected:
    static constexpr int DeepestElement = 64;

private:
    /// Reads a text without a byte-order mark, that begins as a document does, into an empty tree; false when it isn't
    /// well-formed or must be refused. What it leaves in the tree then is removed.
    virtual bool Read(std::string_view text, XmlTree& tree) = 0;
};

}
