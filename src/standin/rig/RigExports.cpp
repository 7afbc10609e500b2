#include "addin/com/KeptProperties.h"
#include "base/Failure.h"
#include "standin/rig/Rig.h"
#include "wire/FrameReader.h"
#include "wire/FrameType.h"
#include "wire/FrameWriter.h"
#include "wire/WireFailure.h"

#include <cstddef>
#include <exception>

namespace tempodial {

namespace {

constexpr std::size_t AnswerLengthSize = 4;

/// Does a request and makes its answer.
std::string Answered(std::string bytes)
{
    try {
        FrameReader request(std::move(bytes));
        request.Byte();
        const auto word = request.Text();
        FrameWriter answer(FrameType::Result);
        return answer.Value(Rig::Only().Do(word, request.Values())).Frame();
    } catch (const Failure& failure) {
        FrameWriter answer(FrameType::Failed);
        return answer.Number(failure.Number()).Text(failure.Description()).Frame();
    } catch (const std::exception& error) {
        FrameWriter answer(FrameType::Failed);
        return answer.Number(WireFailure::Refused).Text(error.what()).Frame();
    }
}

}

/// Connects the module with the program that has loaded it.
extern "C" void TempodialRigAttach(const RigLink* link)
{
    // Calls are counted in both hosts, so that the same ones fail.
    KeptProperties::AreWanted() = false;
    Rig::Only().Attach(*link);
}

/// Does a request of the host.
extern "C" void TempodialRigDo(void* /*end*/, const char* bytes, std::size_t size, RigReply reply, void* context)
{
    const auto answer = Answered(std::string(bytes, size)).substr(AnswerLengthSize);
    reply(context, answer.data(), answer.size());
}

}
