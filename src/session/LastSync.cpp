#include "session/LastSync.h"

#include "base/Failure.h"
#include "base/IsoDate.h"
#include "host/files/ReplacementFile.h"
#include "session/ProductFacts.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 4> Outcomes { "whole", "partly", "interrupted", "failed" };

NativePath PathIn(const Profile& profile)
{
    return NativePath::Exactly(profile.Path() + "/" + LastSyncFileName);
}

/// A moment as it was written, nothing for another text.
std::optional<Date> MomentOf(const std::string& text)
{
    std::istringstream parts(text);
    Date::Parts moment {};
    char dash = 0;
    char letter = 0;
    char colon = 0;
    parts >> moment.year >> dash >> moment.month >> dash >> moment.day >> letter >> moment.hour >> colon
        >> moment.minute >> colon >> moment.second;
    try {
        // What isn't written in the same way again is another text.
        const auto date = Date::FromParts(moment);
        return parts && IsoMoment(date) == text ? std::optional(date) : std::nullopt;
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}

void LastSync::Keep(const Profile& profile) const noexcept
{
    try {
        std::ostringstream line;
        line << IsoMoment(when) << " " << outcome << " " << created << " " << extended << " " << detailed << " "
             << unread << "\n";
        ReplacementFile file(PathIn(profile));
        file.Write(line.str());
        file.TakePlace();
    } catch (...) {
        // The next one is kept again.
    }
}

std::optional<LastSync> LastSync::Of(const Profile& profile)
{
    constexpr std::size_t Longest = 200;
    try {
        std::istringstream line(FileDescriptor(PathIn(profile), Opening::Reading).ReadAll(Longest));
        std::string moment;
        LastSync last;
        line >> moment >> last.outcome >> last.created >> last.extended >> last.detailed >> last.unread;
        const auto when = MomentOf(moment);
        const bool isKnown = std::find(Outcomes.begin(), Outcomes.end(), last.outcome) != Outcomes.end();
        if (!line || !when || !isKnown) {
            return std::nullopt;
        }
        last.when = *when;
        return last;
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}
