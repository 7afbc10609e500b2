#pragma once

#include "portable/XmlParser.h"

#include <expat.h>

#include <exception>
#include <memory>
#include <string_view>

namespace tempodial {

/// Reads texts into trees, one parser of expat serving them all.
class ExpatParser final : public XmlParser
{
public:
    /// Fails (7) without memory.
    ExpatParser();

private:
    struct Freeing
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    bool Read(std::string_view text, XmlTree& tree) override;
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
