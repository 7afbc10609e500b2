#pragma once

namespace tempodial {

/// Whether an item keeps the user properties that it has handed out for as long as it is held, which saves many calls.
/// An import holds one from line to line, and saves and closes it each time.
struct KeptProperties
{
    /// To be set before any item is there; not wanted where calls are counted against those of another host.
    static bool& AreWanted()
    {
        static bool wanted = true;
        return wanted;
    }
};

}
