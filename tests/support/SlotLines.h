#pragma once

#include "slots/SlotLine.h"

#include <string>
#include <vector>

namespace tempodial {

/// A slot, in seconds after midnight, in which a document was open in the word processor; more can be put into it.
SlotLine WordLine(int start, int end, const std::string& document);
/// The line of such a slot, without its end.
std::string WordSlot(int start, int end, const std::string& document);
/// A tracker's file of these lines: a first line, then each with its end.
std::string TrackerText(const std::vector<std::string>& lines);

}
