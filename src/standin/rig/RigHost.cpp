#include "standin/rig/RigHost.h"

#include "base/Failure.h"
#include "wire/Answer.h"

#include <cstddef>
#include <cstdint>

namespace tempodial {

namespace {

void TakeReply(void* reply, const char* bytes, std::size_t size)
{
    static_cast<std::string*>(reply)->assign(bytes, size);
}

}

WireValue RigHost::Ask(const std::string& word, const std::vector<WireValue>& arguments) const
{
    FrameWriter request(FrameType::Surroundings);
    const auto bytes = request.Text(word).Values(arguments).WithoutLength();
    std::string reply;
    mLink.ask(mLink.end, bytes.data(), bytes.size(), &TakeReply, &reply);
    FrameReader answer(std::move(reply));
    const auto type = static_cast<FrameType>(answer.Byte());
    try {
        return ValueOfAnswer(type, answer);
    } catch (const WireFailure& failure) {
        throw Failure(static_cast<std::int32_t>(failure.Number()), failure.what());
    }
}

}
