#pragma once

#include <string>

namespace tempodial {

/// The socket of the recorder of a profile: in the folder that the system gives a
/// user's session, else in the profile.
std::string ControlPathOf(const std::string& profile);

}
