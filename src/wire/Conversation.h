#pragma once

#include "wire/ByteChannel.h"
#include "wire/FrameReader.h"
#include "wire/FrameType.h"
#include "wire/FrameWriter.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// One end of the wire: asks the other end, and serves what the other end asks. Requests nest, as calls do: who waits
/// for an answer serves what comes in meanwhile.
class Conversation
{
public:
    /// Does a request of the other end: what it returns is the answer, and a `WireFailure` that it throws is told as
    /// that.
    using Server = std::function<WireValue(FrameType type, FrameReader& body)>;

    /// Takes a channel that must outlive it.
    Conversation(ByteChannel& channel, Server server);

    /// Asks and waits for the answer. Fails with `WireFailure` when the other end couldn't do it, with `WireBroken`
    /// when the other end is gone.
    WireValue Ask(FrameWriter& request);
    /// Sends what isn't answered, together with whatever is sent next: alone it would wake the other end for nothing.
    void Tell(FrameWriter& frame) { mUnsent += frame.Frame(); }
    /// Waits for a request and serves it; false when the other end has closed.
    bool ServeNext();

private:
    /// The next frame without its length, empty when the other end has closed.
    std::string NextFrame();
    /// Takes bytes off what was read; false when the other end closed before the first of them.
    bool Take(std::size_t size, std::string& bytes);
    void Serve(FrameType type, FrameReader& body);
    void Send(FrameWriter& frame);

    ByteChannel& mChannel;
    Server mServer;
    std::string mUnsent;
    std::vector<char> mBuffer;
    std::size_t mFilled = 0;
    std::size_t mTaken = 0;
};

}
