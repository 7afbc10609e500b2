#pragma once

#include <string>

namespace tempodial {

/// Writes a file that a person wants to have, in the place of one of that path; fails as the disk does, and then the
/// one before is there still.
void SaveFile(const std::string& path, const std::string& content);

}
