#pragma once

namespace tempodial {

/// What who starts the program wants besides its windows.
enum class StartWish { None, Refresh, Report };

}
