#pragma once

#include "wire/FrameReader.h"
#include "wire/FrameWriter.h"
#include "wire/WireFailure.h"

namespace tempodial {

/// The answer to a request: what the work gives, or the `WireFailure` that it fails with.
template <class Work> FrameWriter AnswerOf(const Work& work)
{
    try {
        const WireValue value = work();
        FrameWriter answer(FrameType::Result);
        answer.Value(value);
        return answer;
    } catch (const WireFailure& failure) {
        FrameWriter answer(FrameType::Failed);
        answer.Number(failure.Number()).Text(failure.what());
        return answer;
    }
}

/// True for a frame that answers a request.
inline bool IsAnswer(FrameType type)
{
    return type == FrameType::Result || type == FrameType::Failed;
}

/// The value of such a frame, behind its type; fails with the `WireFailure` that it tells of.
WireValue ValueOfAnswer(FrameType type, FrameReader& body);

}
