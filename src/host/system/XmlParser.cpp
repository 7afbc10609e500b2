#include "host/system/XmlParser.h"

#include "base/Failure.h"
#include "base/Utf8.h"

#include <cstddef>
#include <random>
#include <utility>

namespace tempodial {

namespace {

constexpr int DeepestElement = 64;
constexpr std::size_t LongestDocument = std::size_t { 16 } << 20;

/// True when a text begins as a document does. By other beginnings expat would know UTF-16, or a second byte-order
/// mark.
bool BeginsInUtf8(std::string_view text)
{
    constexpr std::string_view Beginnings = "< \t\r\n";
    return text.size() > 1 && Beginnings.find(text[0]) != std::string_view::npos && text[1] != '\0';
}

}

XmlParser::XmlParser()
    : mParser(XML_ParserCreate("UTF-8"))
    , mHashSalt(std::random_device()() | 1UL) // 0 would have the system asked for one at each document
{
    if (!mParser) {
        throw Failure(Error::OutOfMemory);
    }
}

bool XmlParser::Parse(std::string_view text, XmlTree& tree)
{
    tree.Clear();
    if (text.starts_with(Utf8ByteOrderMark)) {
        text.remove_prefix(Utf8ByteOrderMark.size());
    }
    if (text.size() > LongestDocument || !BeginsInUtf8(text)) {
        return false;
    }
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
    if (!isWellFormed) {
        tree.Clear();
    }
    if (mThrown) {
        std::rethrow_exception(std::exchange(mThrown, nullptr));
    }
    return isWellFormed;
}

template <class Work> void XmlParser::Guarded(void* self, Work&& work)
{
    auto& parser = *static_cast<XmlParser*>(self);
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

void XmlParser::StartElement(void* self, const XML_Char* name, const XML_Char** attributes)
{
    Guarded(self, [&](XmlParser& parser) {
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

void XmlParser::EndElement(void* self, const XML_Char*)
{
    Guarded(self, [](XmlParser& parser) {
        --parser.mDepth;
        parser.mPlace = parser.mTree->Parent(parser.mPlace);
    });
}

void XmlParser::CharacterData(void* self, const XML_Char* text, int length)
{
    Guarded(self, [&](XmlParser& parser) {
        parser.mTree->AddText(parser.mPlace, { text, static_cast<std::size_t>(length) });
    });
}

void XmlParser::StartDoctype(void* self, const XML_Char*, const XML_Char*, const XML_Char*, int)
{
    XML_StopParser(static_cast<XmlParser*>(self)->mParser.get(), XML_FALSE);
}

}
