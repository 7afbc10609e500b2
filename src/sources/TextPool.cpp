#include "sources/TextPool.h"

#include <algorithm>
#include <functional>

namespace tempodial {

namespace {

constexpr std::size_t PoolPieceBytes = std::size_t { 1 } << 20;

}

std::uint32_t TextPool::NumberOf(std::string_view text)
{
    const auto next = static_cast<std::uint32_t>(mPlaces.size());
    const auto number = mIndex.Find(
        std::hash<std::string_view> {}(text), next, [&](std::uint32_t known) { return Text(known) == text; });
    if (number == next) {
        if (mPieces.empty() || mPieces.back().capacity() - mPieces.back().size() < text.size()) {
            mPieces.emplace_back().reserve(std::max(PoolPieceBytes, text.size()));
        }
        auto& piece = mPieces.back();
        mPlaces.push_back({ static_cast<std::uint32_t>(mPieces.size() - 1), static_cast<std::uint32_t>(piece.size()),
            static_cast<std::uint32_t>(text.size()) });
        piece += text;
    }
    return number;
}

std::string_view TextPool::Text(std::uint32_t number) const
{
    const auto& place = mPlaces[number];
    return std::string_view(mPieces[place.piece]).substr(place.begin, place.size);
}

}
