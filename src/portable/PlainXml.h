#pragma once

#include "portable/XmlTree.h"

#include <cstddef>
#include <string_view>

namespace tempodial {

/// Reads what nearly all documents of trackers and of projects are: elements without attributes, texts and the five
/// entities that each document has. That takes a small part of the time in which a parser of all XML reads it.
class PlainXml
{
public:
    /// Reads from a text into an empty tree.
    PlainXml(std::string_view text, XmlTree& tree)
        : mRest(text)
        , mTree(tree)
    {
    }

    /// Reads all of the text; false when something else stands in it, something is wrong in it, or it is nested deeper.
    /// Only a parser of all XML can tell which, and the tree then holds what was read until there.
    bool Read(std::size_t deepest);

private:
    void TakeBlanks();
    bool Take(char character);
    std::string_view TakeName();
    bool ReadStartTag(std::size_t deepest);
    bool ReadEndTag();
    bool ReadText();
    bool ReadEntity(std::string_view& text);

    std::string_view mRest;
    XmlTree& mTree;
    XmlTree::Index mPlace = XmlTree::Document;
    std::size_t mDepth = 0;
};

}
