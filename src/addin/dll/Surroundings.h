#pragma once

#include "base/Ref.h"
#include "platform/Platform.h"

namespace tempodial {

/// What the engine gets of its surroundings in this module.
Ref<const Platform> Surroundings();
/// The last add-in was disconnected: what its surroundings still hold is let go.
void EndSurroundings();

}
