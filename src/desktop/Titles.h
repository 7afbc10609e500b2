#pragma once

namespace tempodial {

/// Whether what windows' titles and other people told is shown, or only projects and applications.
enum class Titles { Shown, Hidden };

}
