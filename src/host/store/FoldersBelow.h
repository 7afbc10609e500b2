#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/MAPIFolder.h"

#include <vector>

namespace tempodial {

/// The folders below one, at any depth, each before those below it.
std::vector<Ref<MAPIFolder>> FoldersBelow(const Ref<MAPIFolder>& folder);

}
