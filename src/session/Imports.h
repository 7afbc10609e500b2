#pragma once

namespace tempodial {

/// What the imports of a host go by.
enum class Imports {
    /// The history alone, as on Outlook.
    ByHistory,
    /// The lines that were reached before, whatever becomes of history, clock and files. An import stops at what it
    /// can't read, and a tracker file that is too old and wasn't read as a whole is kept.
    ByLines,
};

}
