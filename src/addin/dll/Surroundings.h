#pragma once

#include "addin/base/ComRef.h"
#include "base/Ref.h"
#include "platform/Platform.h"

namespace tempodial {

/// What the engine gets of its surroundings in this module, in front of the windows of the host's application.
Ref<const Platform> Surroundings(const ComRef<IDispatch>& application);
/// The last add-in was disconnected: what its surroundings still hold is let go.
void EndSurroundings();

}
