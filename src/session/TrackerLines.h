#pragma once

#include "platform/system/FileSystemObject.h"

#include <string>

namespace tempodial {

/// The numbers of the lines of a tracker's file that no import can read, the heading being line 1, as "line 3" or
/// "lines 3, 5 and 12 more"; empty when it can read all. Fails as opening and reading do.
std::string UnreadableLines(FileSystemObject& files, const std::string& path);

}
