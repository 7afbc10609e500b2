#include "floors/SlotReader.h"

#include <expat.h>

#include <cstdlib>

namespace tempodial {

namespace {

constexpr unsigned long HashSalt = 20061010;

}

SlotReader::SlotReader()
    : mParser(XML_ParserCreate("UTF-8"))
{
}

SlotReader::~SlotReader()
{
    XML_ParserFree(mParser);
}

bool SlotReader::Read(std::string_view line)
{
    XML_ParserReset(mParser, "UTF-8");
    // Without one the system would be asked for one at each document.
    XML_SetHashSalt(mParser, HashSalt);
    XML_SetUserData(mParser, this);
    XML_SetElementHandler(mParser, Begin, End);
    XML_SetCharacterDataHandler(mParser, Letters);
    mUsed = 0;
    mDepth = 0;
    return XML_Parse(mParser, line.data(), static_cast<int>(line.size()), 1) == XML_STATUS_OK;
}

std::string_view SlotReader::Text(std::string_view name) const
{
    for (std::size_t index = 0; index < mUsed; ++index) {
        if (mTexts[index].first == name) {
            return mTexts[index].second;
        }
    }
    return {};
}

long SlotReader::Number(std::string_view name) const
{
    return std::strtol(std::string(Text(name)).c_str(), nullptr, 10);
}

void SlotReader::Begin(void* self, const char* name, const char**)
{
    auto& reader = *static_cast<SlotReader*>(self);
    if (++reader.mDepth == 2) {
        if (reader.mUsed == reader.mTexts.size()) {
            reader.mTexts.emplace_back();
        }
        auto& [key, text] = reader.mTexts[reader.mUsed++];
        key = name;
        text.clear();
    }
}

void SlotReader::End(void* self, const char*)
{
    --static_cast<SlotReader*>(self)->mDepth;
}

void SlotReader::Letters(void* self, const char* text, int length)
{
    auto& reader = *static_cast<SlotReader*>(self);
    if (reader.mDepth == 2) {
        reader.mTexts[reader.mUsed - 1].second.append(text, static_cast<std::size_t>(length));
    }
}

}
