#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// The socket of the recorder of a profile: in the folder that the system gives a user's session, else in the profile.
std::string ControlPathOf(const std::string& profile);
/// All places where the recorder of a profile may listen, that one first: it may have been started in another session.
std::vector<std::string> ControlPathsOf(const std::string& profile);

}
