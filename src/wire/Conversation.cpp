#include "wire/Conversation.h"

#include "wire/Answer.h"
#include "wire/WireFailure.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t BufferSize = 65536;
constexpr std::size_t LengthOfLength = 4;
/// Longer frames are none: the largest is a picture's file.
constexpr std::size_t LongestFrame = std::size_t { 256 } << 20;

}

Conversation::Conversation(ByteChannel& channel, Server server)
    : mChannel(channel)
    , mServer(std::move(server))
    , mBuffer(BufferSize)
{
}

WireValue Conversation::Ask(FrameWriter& request)
{
    Send(request);
    for (;;) {
        auto frame = NextFrame();
        if (frame.empty()) {
            throw WireBroken("the other end is gone");
        }
        FrameReader body(std::move(frame));
        const auto type = static_cast<FrameType>(body.Byte());
        if (IsAnswer(type)) {
            return ValueOfAnswer(type, body);
        }
        Serve(type, body);
    }
}

bool Conversation::ServeNext()
{
    auto frame = NextFrame();
    if (frame.empty()) {
        return false;
    }
    FrameReader body(std::move(frame));
    const auto type = static_cast<FrameType>(body.Byte());
    Serve(type, body);
    return true;
}

void Conversation::Serve(FrameType type, FrameReader& body)
{
    if (type == FrameType::Free) {
        mServer(type, body);
        return;
    }
    auto answer = AnswerOf([&] { return mServer(type, body); });
    Send(answer);
}

void Conversation::Send(FrameWriter& frame)
{
    Tell(frame);
    mChannel.Write(std::exchange(mUnsent, {}));
}

std::string Conversation::NextFrame()
{
    std::string length;
    if (!Take(LengthOfLength, length)) {
        return {};
    }
    constexpr std::size_t ByteValues = 256;
    const auto size = std::accumulate(length.rbegin(), length.rend(), std::size_t { 0 },
        [](std::size_t sum, char byte) { return sum * ByteValues + static_cast<unsigned char>(byte); });
    std::string frame;
    if (size == 0 || size > LongestFrame || !Take(size, frame)) {
        throw WireBroken("what came over the wire is no frame");
    }
    return frame;
}

bool Conversation::Take(std::size_t size, std::string& bytes)
{
    while (bytes.size() < size) {
        if (mTaken == mFilled) {
            mTaken = 0;
            mFilled = mChannel.Read(mBuffer.data(), mBuffer.size());
            if (mFilled == 0) {
                if (bytes.empty()) {
                    return false;
                }
                throw WireBroken("the other end closed within a frame");
            }
        }
        const auto count = std::min(size - bytes.size(), mFilled - mTaken);
        bytes.append(mBuffer.data() + mTaken, count);
        mTaken += count;
    }
    return true;
}

}
