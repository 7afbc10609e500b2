#include "desktop/UnreadLines.h"

#include "base/TrackerFile.h"

namespace tempodial {

std::string UnreadSentence(const std::vector<StoreImportJournal::UnreadLine>& lines)
{
    if (lines.empty()) {
        return {};
    }
    const auto& first = lines.front();
    const auto place = "line " + std::to_string(first.number) + " of " + TrackerFileName(first.day);
    if (lines.size() == 1) {
        return "The import left out " + place + ", which can't be read: correct it, or leave it.";
    }
    return "The import left out " + std::to_string(lines.size()) + " lines that can't be read, the first of them "
        + place + ": \"tempodial doctor\" names them all; correct them, or leave them.";
}

}
