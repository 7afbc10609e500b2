#include "standin/rig/RigHost.h"

#include "base/Failure.h"
#include "wire/FrameReader.h"
#include "wire/FrameType.h"
#include "wire/FrameWriter.h"

#include <cstddef>

namespace tempodial {

namespace {

constexpr std::size_t FrameLengthSize = 4;

void TakeReply(void* reply, const char* bytes, std::size_t size)
{
    static_cast<std::string*>(reply)->assign(bytes, size);
}

}

WireValue RigHost::Ask(const std::string& word, const std::vector<WireValue>& arguments) const
{
    FrameWriter request(FrameType::Surroundings);
    const auto bytes = request.Text(word).Values(arguments).Frame().substr(FrameLengthSize);
    std::string reply;
    mLink.ask(mLink.end, bytes.data(), bytes.size(), &TakeReply, &reply);
    FrameReader answer(std::move(reply));
    if (static_cast<FrameType>(answer.Byte()) == FrameType::Failed) {
        const auto number = static_cast<std::int32_t>(answer.Number());
        throw Failure(number, answer.Text());
    }
    return answer.Value();
}

}
