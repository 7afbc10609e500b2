#include "faults/UndoneWork.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

bool IsOrdinary(const Failure& failure)
{
    return failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound) || failure.Is(Error::InputPastEnd);
}

}

std::string_view UndoneWork(const InterposedCall& call, const Failure& failure)
{
    using Row = std::pair<std::string_view, std::string_view>;
    static constexpr std::array Rows { Row { "CreateFolder", "made" }, Row { "GetFolder", "read" },
        Row { "MoveFile", "moved" }, Row { "CopyFile", "copied" }, Row { "DeleteFile", "deleted" },
        Row { "ReadLine", "read" }, Row { "ReadAll", "read" }, Row { "Write", "written" },
        Row { "WriteLine", "written" }, Row { "Close", "written" } };
    if (call.path.empty() || IsOrdinary(failure)) {
        return {};
    }
    if (call.member == "OpenTextFile") {
        return call.opensForWriting ? "written" : "read";
    }
    const auto* const row
        = std::find_if(Rows.begin(), Rows.end(), [&](const Row& known) { return known.first == call.member; });
    return row == Rows.end() ? std::string_view() : row->second;
}

}
