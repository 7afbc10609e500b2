#pragma once

#include "host/store/StoreImportJournal.h"

#include <string>
#include <vector>

namespace tempodial {

/// What a person is told of lines of the tracker that an import couldn't read; empty when there is none.
std::string UnreadSentence(const std::vector<StoreImportJournal::UnreadLine>& lines);

}
