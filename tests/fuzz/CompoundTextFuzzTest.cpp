#include "base/Utf8.h"
#include "fuzz/FuzzTarget.h"
#include "track/x11/CompoundText.h"

namespace tempodial {

namespace {

void ReadCompoundText(std::string_view input)
{
    constexpr std::size_t MostBytesOfOne = 4;
    const auto text = FromCompoundText(input);
    Hold(IsUtf8(text), "the text is UTF-8");
    Hold(text.size() <= input.size() * MostBytesOfOne, "a text isn't much longer than it was");
    Hold(IsUtf8(FromLatin1(input)), "Latin-1 is UTF-8 afterwards");
}

}

TEMPODIAL_FUZZ_TARGET(CompoundText, ReadCompoundText)

}
