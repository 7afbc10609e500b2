#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct XML_ParserStruct;

namespace tempodial {

/// Reads slot lines, each an XML document, with one parser that begins anew for each line.
class SlotReader
{
public:
    SlotReader();
    SlotReader(const SlotReader&) = delete;
    SlotReader& operator=(const SlotReader&) = delete;
    ~SlotReader();

    /// Reads a line; false when it is no XML.
    bool Read(std::string_view line);
    /// The text of an element, empty when the line has none of that name.
    std::string_view Text(std::string_view name) const;
    /// The text of an element as a number.
    long Number(std::string_view name) const;

private:
    static void Begin(void* self, const char* name, const char** attributes);
    static void End(void* self, const char* name);
    static void Letters(void* self, const char* text, int length);

    XML_ParserStruct* mParser;
    std::vector<std::pair<std::string, std::string>> mTexts;
    std::size_t mUsed = 0;
    int mDepth = 0;
};

}
