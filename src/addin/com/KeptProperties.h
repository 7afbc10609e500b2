#pragma once

namespace tempodial {

/// Whether an item keeps the user properties that it has handed out until it is closed, which saves many calls.
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
