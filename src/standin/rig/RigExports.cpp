#include "addin/com/KeptProperties.h"
#include "base/Failure.h"
#include "standin/rig/Rig.h"
#include "wire/Answer.h"

#include <cstddef>
#include <exception>

namespace tempodial {

namespace {

/// Does a request; everything that it fails with is a `WireFailure`.
WireValue Done(std::string bytes)
{
    try {
        FrameReader request(std::move(bytes));
        request.Byte();
        const auto word = request.Text();
        return Rig::Only().Do(word, request.Values());
    } catch (const WireFailure&) {
        throw;
    } catch (const Failure& failure) {
        throw WireFailure(failure.Number(), failure.Description());
    } catch (const std::exception& error) {
        throw WireFailure(WireFailure::Refused, error.what());
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
    const auto answer = AnswerOf([&] { return Done(std::string(bytes, size)); }).WithoutLength();
    reply(context, answer.data(), answer.size());
}

}
