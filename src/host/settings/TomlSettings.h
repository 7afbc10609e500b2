#pragma once

#include "base/SettingsFile.h"

#include <string>

namespace tempodial {

/// Reads a file of settings: tables under headings in double brackets. An absent file has no records; one that can't be
/// read, and one that holds anything else, fails with a `SettingsFileError`.
SettingsFile ReadSettingsFile(const std::string& path);

}
