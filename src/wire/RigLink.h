#pragma once

#include <cstddef>

namespace tempodial {

/// How the test build of the add-in's module and the program that loads it talk: by plain functions, since no exception
/// and no object may cross between two modules. Bytes are those of frames, without the length in front.

/// Takes the bytes of an answer.
using RigReply = void (*)(void* context, const char* bytes, std::size_t size);
/// Does a request, and gives its answer to a function while it runs.
using RigRequest = void (*)(void* end, const char* bytes, std::size_t size, RigReply reply, void* context);

/// What the program offers the module.
struct RigLink
{
    /// Asks the host, through the program.
    RigRequest ask;
    /// What is passed to it.
    void* end;
};

/// The names by which the program finds what the module offers.
inline constexpr auto RigAttachName = "TempodialRigAttach"; ///< void (const RigLink*)
inline constexpr auto RigDoName = "TempodialRigDo"; ///< RigRequest

}
