#pragma once

#include "host/system/XmlTree.h"

#include <expat.h>

#include <exception>
#include <memory>
#include <string_view>

namespace tempodial {

/// Reads texts into trees, one parser of expat serving them all. A document type declaration is refused, and so is a
/// document that is nested more than 64 deep or longer than 16 MiB.
class XmlParser
{
public:
    /// Fails (7) without memory.
    XmlParser();

    /// Reads a text of UTF-8, whatever encoding it says it has; false, and an empty tree, when it isn't well-formed.
    /// Throws what the tree throws, and the tree is empty then, too.
    bool Parse(std::string_view text, XmlTree& tree);

private:
    struct Freeing
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    /// Does the work of a handler; what it throws ends the parse, since nothing may pass through the frames of C.
    template <class Work> static void Guarded(void* self, Work&& work);
    static void StartElement(void* self, const XML_Char* name, const XML_Char** attributes);
    static void EndElement(void* self, const XML_Char* name);
    static void CharacterData(void* self, const XML_Char* text, int length);
    static void StartDoctype(
        void* self, const XML_Char* name, const XML_Char* systemId, const XML_Char* publicId, int hasInternalSubset);

    std::unique_ptr<XML_ParserStruct, Freeing> mParser;
    unsigned long mHashSalt;
    XmlTree* mTree = nullptr;
    XmlTree::Index mPlace = XmlTree::Document;
    int mDepth = 0;
    /// What a handler has thrown.
    std::exception_ptr mThrown;
};

}
