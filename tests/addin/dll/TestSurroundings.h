#pragma once

namespace tempodial {

/// How the module's surroundings were used; here they are empty.
struct SurroundingsUse
{
    int made = 0;
    int ended = 0;
    bool fails = false;
};

/// The use since a test began to count.
SurroundingsUse& UseOfSurroundings();

}
