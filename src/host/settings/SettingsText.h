#pragma once

#include "base/SettingsFile.h"

#include <string>

namespace tempodial {

/// Records as the text of a file of settings, which reads as they are; bytes that belong to no character are shown as
/// such. Names and kinds are words of letters, digits and "-".
std::string SettingsText(const std::vector<SettingsRecord>& records);

/// Puts records into a file of settings in the place of what it held. Fails as writing a file does.
void WriteSettingsFile(const SettingsFile& file);

}
