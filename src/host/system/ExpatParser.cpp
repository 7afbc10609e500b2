#include "host/system/ExpatParser.h"

#include "base/Failure.h"
#include "base/MemoryShortage.h"

#include <cstddef>
#include <new>
#include <random>
#include <utility>

namespace tempodial {

ExpatParser::ExpatParser()
    : mParser(XML_ParserCreate("UTF-8"))
    , mHashSalt(std::random_device()() | 1UL) // 0 would have the system asked for one at each document
{
    if (!mParser) {
        throw Failure(Error::OutOfMemory);
    }
}

bool ExpatParser::Read(std::string_view text, XmlTree& tree)
{
    auto* parser = mParser.get();
    XML_ParserReset(parser, "UTF-8");
    XML_SetHashSalt(parser, mHashSalt);
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, &StartElement, &EndElement);
    XML_SetCharacterDataHandler(parser, &CharacterData);
    XML_SetStartDoctypeDeclHandler(parser, &StartDoctype);
    mTree = &tree;
    mPlace = XmlTree::Document;
    mDepth = 0;
    const bool isWellFormed = XML_Parse(parser, text.data(), static_cast<int>(text.size()), XML_TRUE) == XML_STATUS_OK;
    if (mThrown) {
        std::rethrow_exception(std::exchange(mThrown, nullptr));
    }
    if (!isWellFormed && XML_GetErrorCode(parser) == XML_ERROR_NO_MEMORY) {
        MemoryShortage::Note();
        throw std::bad_alloc();
    }
    return isWellFormed;
}

template <class Work> void ExpatParser::Guarded(void* self, Work&& work)
{
    auto& parser = *static_cast<ExpatParser*>(self);
    // A parser that was stopped may call once more, for the end of an empty element.
    if (parser.mThrown) {
        return;
    }
    try {
        work(parser);
    } catch (...) {
        parser.mThrown = std::current_exception();
        XML_StopParser(parser.mParser.get(), XML_FALSE);
    }
}

void ExpatParser::StartElement(void* self, const XML_Char* name, const XML_Char** attributes)
{
    Guarded(self, [&](ExpatParser& parser) {
        if (++parser.mDepth > DeepestElement) {
            XML_StopParser(parser.mParser.get(), XML_FALSE);
            return;
        }
        parser.mPlace = parser.mTree->AddElement(parser.mPlace, name);
        for (; *attributes != nullptr; attributes += 2) {
            parser.mTree->AddAttribute(parser.mPlace, attributes[0], attributes[1]);
        }
    });
}

void ExpatParser::EndElement(void* self, const XML_Char*)
{
    Guarded(self, [](ExpatParser& parser) {
        --parser.mDepth;
        parser.mPlace = parser.mTree->Parent(parser.mPlace);
    });
}

void ExpatParser::CharacterData(void* self, const XML_Char* text, int length)
{
    Guarded(self, [&](ExpatParser& parser) {
        parser.mTree->AddText(parser.mPlace, { text, static_cast<std::size_t>(length) });
    });
}

void ExpatParser::StartDoctype(void* self, const XML_Char*, const XML_Char*, const XML_Char*, int)
{
    XML_StopParser(static_cast<ExpatParser*>(self)->mParser.get(), XML_FALSE);
}

}
