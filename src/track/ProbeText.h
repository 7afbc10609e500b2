#pragma once

#include "slots/ViewMaker.h"
#include "track/DesktopChoice.h"
#include "track/Recorder.h"

#include <string>
#include <vector>

namespace tempodial {

/// What desktops can be watched, for programs and for people; each with a line feed at its end.
std::string ProbeJson(const std::vector<DesktopTrial>& trials);
std::string ProbeText(const std::vector<DesktopTrial>& trials);

/// What is in front at a moment, in the words that the log may have; the same.
std::string OnceJson(const std::string& desktop, const Seen& made, const Observation& seen);
std::string OnceText(const Seen& made, const Observation& seen);

}
