#include "session/TextSweep.h"

#include "base/Text.h"
#include "session/SlotTexts.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::size_t HeadSize = 3;

std::uint32_t HeadAt(std::string_view text, std::size_t at)
{
    constexpr unsigned int byteBits = 8;
    std::uint32_t head = 0;
    for (const char byte : text.substr(at, HeadSize)) {
        head = head << byteBits | static_cast<unsigned char>(byte);
    }
    return head;
}

}

void TextSweep::Add(std::string_view text)
{
    auto folded = Fold(text);
    if (folded.empty() || !mTexts.insert(folded).second) {
        return;
    }
    if (folded.size() < HeadSize) {
        mShort.push_back(std::move(folded));
    } else {
        mLong[HeadAt(folded, 0)].push_back(std::move(folded));
    }
}

bool TextSweep::Finds(std::string_view text) const
{
    return FindsFolded(Fold(text))
        || (text.find('&') != std::string_view::npos && FindsFolded(Fold(SlotTexts::Unescaped(text))));
}

bool TextSweep::FindsFolded(const std::string& folded) const
{
    const bool hasShort = std::any_of(
        mShort.begin(), mShort.end(), [&folded](const auto& known) { return folded.find(known) != std::string::npos; });
    if (hasShort) {
        return true;
    }
    for (std::size_t at = 0; !mLong.empty() && at + HeadSize <= folded.size(); ++at) {
        const auto found = mLong.find(HeadAt(folded, at));
        const bool isThere = found != mLong.end()
            && std::any_of(found->second.begin(), found->second.end(),
                [&](const auto& known) { return folded.compare(at, known.size(), known) == 0; });
        if (isThere) {
            return true;
        }
    }
    return false;
}

}
