#pragma once

#include "addin/base/ComRef.h"

#include <optional>
#include <string>

namespace tempodial {

/// The file that a picture was read from, nothing for what is no picture.
std::optional<std::string> PictureBytes(const ComRef<IDispatch>& object);

}
