#pragma once

namespace tempodial {

/// The exit statuses of the program.
enum class ExitStatus : int { Done = 0, NotDone = 1, Usage = 2, ProfileInUse = 3, Interrupted = 130 };

}
