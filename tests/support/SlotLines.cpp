#include "support/SlotLines.h"

namespace tempodial {

SlotLine WordLine(int start, int end, const std::string& document)
{
    constexpr int wordProcessor = 2;
    return SlotLine(start, end).Application(wordProcessor).Node("WordDocName", document);
}

std::string WordSlot(int start, int end, const std::string& document)
{
    return WordLine(start, end, document).Text();
}

std::string TrackerText(const std::vector<std::string>& lines)
{
    std::string text = "tracker\r\n";
    for (const auto& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

}
