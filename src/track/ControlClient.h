#pragma once

#include "track/ControlMessage.h"

#include <optional>
#include <string>

namespace tempodial {

/// Asks the recorder that listens at a path; nothing when none does.
std::optional<ControlMessage> AskRecorder(const std::string& path, const ControlMessage& request);

}
