#pragma once

namespace tempodial {

/// Counts what of the module is still in use, so that it isn't unloaded meanwhile; one lives in each object.
class ModuleUse
{
public:
    ModuleUse() { ++Uses(); }
    ~ModuleUse() { --Uses(); }
    ModuleUse(const ModuleUse&) = delete;
    ModuleUse& operator=(const ModuleUse&) = delete;

    /// How many there are, with the locks that a host took.
    static long& Uses()
    {
        static long uses = 0;
        return uses;
    }
};

}
