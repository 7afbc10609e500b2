#include "engine/reports/ReportDetails.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::size_t BlockSize = 1U << 20U;

}

void ReportDetails::Append(List& list, std::string_view text)
{
    mPieces.push_back({ Store(text), None });
    const auto index = mPieces.size() - 1;
    (list.mLast == None ? list.mFirst : mPieces[list.mLast].next) = index;
    list.mLast = index;
    list.mSize += text.size();
}

void ReportDetails::AppendTo(std::string& text, const List& list) const
{
    for (auto index = list.mFirst; index != None; index = mPieces[index].next) {
        text += mPieces[index].text;
    }
}

std::string_view ReportDetails::Store(std::string_view text)
{
    if (text.size() > mRoom) {
        const auto size = std::max(BlockSize, text.size());
        mBlocks.push_back(std::make_unique_for_overwrite<char[]>(size));
        mNext = mBlocks.back().get();
        mRoom = size;
    }
    const std::string_view stored(mNext, text.size());
    mNext = std::copy(text.begin(), text.end(), mNext);
    mRoom -= text.size();
    return stored;
}

}
