#include "addin/dll/TestSurroundings.h"

#include "addin/dll/Surroundings.h"
#include "base/Failure.h"

namespace tempodial {

SurroundingsUse& UseOfSurroundings()
{
    static SurroundingsUse use;
    return use;
}

Ref<const Platform> Surroundings(const ComRef<IDispatch>& /*application*/)
{
    ++UseOfSurroundings().made;
    if (UseOfSurroundings().fails) {
        throw Failure(Error::OutOfMemory);
    }
    return MakeRef<Platform>();
}

void EndSurroundings()
{
    ++UseOfSurroundings().ended;
}

}
