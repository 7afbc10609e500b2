#pragma once

#include <cstdint>

namespace tempodial {

/// What a frame is. Each that asks is answered, and whoever waits for an answer serves what comes in meanwhile.
enum class FrameType : std::uint8_t {
    /// To the host: an object, the flags of the call, the member and the arguments. Answered with the result.
    Call = 'C',
    /// To the host: an object, and whether its events are wanted.
    Advise = 'A',
    /// To the host: an object that nobody holds any more. Not answered.
    Free = 'F',
    /// To the host: a word for what is asked of the surroundings, and arguments.
    Surroundings = 'S',
    /// From the host: an object, the number of an event and its arguments. Answered with the flag that refuses it.
    Event = 'E',
    /// From the host: a word for what is to be done, and arguments.
    Do = 'D',
    /// The answer to a request.
    Result = 'R',
    /// The answer to a request that failed: a number and a text.
    Failed = 'X',
};

}
