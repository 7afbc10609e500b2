#include "session/TrackerLines.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Variant.h"
#include "host/system/ExpatXml.h"

#include <cstddef>

namespace tempodial {

namespace {

/// Line numbers that are named.
constexpr std::size_t NumbersShown = 10;

/// True when a time of a line is a number, or absent where it may be.
bool IsTime(XmlDocument& line, std::string_view path, bool mayBeAbsent)
{
    const auto node = line.SelectSingleNode(path);
    if (!node) {
        return mayBeAbsent;
    }
    try {
        (void)Variant(node->Text()).ToInt32();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

bool IsReadable(XmlDocument& document, const std::string& line)
{
    return document.LoadXML(line) && IsTime(document, "slot/EndTime", false)
        && IsTime(document, "slot/StartTime", true);
}

}

std::string UnreadableLines(FileSystemObject& files, const std::string& path)
{
    const auto document = ExpatXmlFactory().NewDocument();
    std::string numbers;
    std::size_t count = 0;
    try {
        const auto file = files.OpenTextFile(path, OpenMode::Reading, false);
        file->ReadLine();
        for (std::int64_t number = 2;; ++number) {
            const auto line = file->ReadLine();
            const auto kind = file->LastLine();
            const bool counts = kind == LineKind::TooLong || (kind == LineKind::Whole && !IsBlank(line));
            if (counts && (kind == LineKind::TooLong || !IsReadable(*document, line)) && ++count <= NumbersShown) {
                numbers += (count == 1 ? "" : ", ") + std::to_string(number);
            }
        }
    } catch (const Failure& failure) {
        if (!failure.Is(Error::InputPastEnd)) {
            throw;
        }
    }
    if (count == 0) {
        return "";
    }
    return (count == 1 ? "line " : "lines ") + numbers
        + (count > NumbersShown ? " and " + std::to_string(count - NumbersShown) + " more" : "");
}

}
