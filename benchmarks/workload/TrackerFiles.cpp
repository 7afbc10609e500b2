#include "workload/TrackerFiles.h"

#include "session/ProductFacts.h"
#include "workload/TrackerDay.h"

#include <fstream>
#include <stdexcept>

namespace tempodial {

void TrackerFiles::Write(Date last, std::int64_t days, std::int64_t lines) const
{
    for (auto back = days - 1; back >= 0; --back) {
        const auto day = last.AddDays(-back);
        std::ofstream file(Path(day), std::ios::binary);
        file << "benchmark tracker\n";
        TrackerDay slots(static_cast<std::uint32_t>(DaysBetween(Date(), day)));
        for (std::int64_t line = 0; line < lines; ++line) {
            file << slots.NextLine() << '\n';
        }
        file.close();
        if (!file) {
            throw std::runtime_error(Path(day) + " can't be written");
        }
    }
}

std::string TrackerFiles::Path(Date day) const
{
    return mFolder + "/" + TrackerFileName(day.DayKey());
}

}
