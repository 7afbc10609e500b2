#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The elements and texts of one XML document, in three blocks of memory.
class XmlTree
{
public:
    /// A place in the tree; the document itself, above the root element, is 0.
    using Index = std::uint32_t;
    static constexpr Index None = UINT32_MAX;
    static constexpr Index Document = 0;

    XmlTree() { Clear(); }

    /// True when there is no root element.
    bool IsEmpty() const { return mNodes[Document].firstChild == None; }
    /// Removes everything.
    void Clear();

    /// Adds an element behind the other children of a place.
    Index AddElement(Index parent, std::string_view name);
    /// Gives an element an attribute more; it must be the element added last.
    void AddAttribute(Index element, std::string_view name, std::string_view value);
    /// Adds text behind the other children of a place.
    void AddText(Index parent, std::string_view text);
    /// Removes all that stands below a place.
    void RemoveChildren(Index place);

    /// The first element on a path of names, seen from a place; `None` when there is none.
    Index Find(Index place, std::string_view path) const;
    /// The next element of the same name below the same place; `None` when there is none.
    Index Next(Index element) const;
    /// What a place stands below.
    Index Parent(Index place) const { return mNodes[place].parent; }
    /// The name of an element, until something is added.
    std::string_view Name(Index element) const { return CharactersOf(mNodes[element].characters); }
    /// All text below a place.
    std::string Text(Index place) const;
    /// What stands below a place as XML.
    std::string Xml(Index place) const;

private:
    /// A part of `mCharacters`.
    struct Span
    {
        std::uint32_t start = 0;
        std::uint32_t size = 0;
    };
    struct Node
    {
        bool isElement = true;
        /// The name of an element, or the text.
        Span characters;
        Index parent = None;
        Index firstChild = None;
        Index lastChild = None;
        Index next = None;
        std::uint32_t firstAttribute = 0;
        std::uint32_t attributeCount = 0;
    };
    struct Attribute
    {
        Span name;
        Span value;
    };

    Index Add(Index parent, Node node);
    Span Keep(std::string_view characters);
    std::string_view CharactersOf(Span span) const
    {
        return std::string_view(mCharacters).substr(span.start, span.size);
    }
    void AppendText(Index place, std::string& text) const;
    void AppendXml(Index place, std::string& xml) const;

    std::vector<Node> mNodes;
    std::vector<Attribute> mAttributes;
    std::string mCharacters;
};

}
