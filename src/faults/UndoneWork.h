#pragma once

#include "faults/Interposer.h"

#include <string_view>

namespace tempodial {

/// What a failed call leaves undone with its file, such as "read"; empty when it is about no file, only asked for one,
/// or found it absent or at its end, which is no problem.
std::string_view UndoneWork(const InterposedCall& call, const Failure& failure);

}
