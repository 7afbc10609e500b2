#include "wire/Answer.h"

namespace tempodial {

WireValue ValueOfAnswer(FrameType type, FrameReader& body)
{
    if (type == FrameType::Failed) {
        const auto number = body.Number();
        throw WireFailure(number, body.Text());
    }
    return body.Value();
}

}
