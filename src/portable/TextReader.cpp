#include "portable/TextReader.h"

#include "base/Failure.h"

#include <cstring>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t BufferSize = 65536;
constexpr std::size_t LongestLine = std::size_t { 1 } << 20;
constexpr std::size_t LongestText = std::size_t { 64 } << 20;

}

TextReader::TextReader(Source source, TextDecoder decoder)
    : mSource(std::move(source))
    , mDecoder(decoder)
    , mBuffer(new char[BufferSize])
{
}

std::string TextReader::ReadLine()
{
    if (!Fill()) {
        throw Failure(Error::InputPastEnd);
    }
    std::string line;
    bool isTooLong = false;
    bool isEnded = false;
    while (!isEnded && Fill()) {
        const auto* start = mBuffer.get() + mNext;
        const auto* lineEnd = static_cast<const char*>(std::memchr(start, '\n', mEnd - mNext));
        isEnded = lineEnd != nullptr;
        const auto length = isEnded ? static_cast<std::size_t>(lineEnd - start) : mEnd - mNext;
        isTooLong = isTooLong || line.size() + length > LongestLine + 1;
        if (!isTooLong) {
            line.append(start, length);
        }
        mNext += length + (isEnded ? 1 : 0);
    }
    if (isEnded && line.ends_with('\r')) {
        line.pop_back();
    }
    mLastLine = isEnded ? LineKind::Whole : LineKind::Unended;
    if (isTooLong || line.size() > LongestLine) {
        mLastLine = isEnded ? LineKind::TooLong : LineKind::Unended;
        return {};
    }
    return DecodedLine(std::move(line), mDecoder);
}

std::string TextReader::ReadAll()
{
    if (!Fill()) {
        throw Failure(Error::InputPastEnd);
    }
    std::string text;
    while (Fill()) {
        if (text.size() + (mEnd - mNext) > LongestText) {
            throw Failure(Error::OutOfMemory);
        }
        text.append(mBuffer.get() + mNext, mEnd - mNext);
        mNext = mEnd;
    }
    return DecodedLines(std::move(text), mDecoder);
}

bool TextReader::Fill()
{
    if (mNext == mEnd) {
        mNext = 0;
        mEnd = 0;
        mEnd = mSource(mBuffer.get(), BufferSize);
    }
    return mNext != mEnd;
}

}
