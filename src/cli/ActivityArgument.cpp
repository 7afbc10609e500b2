#include "cli/ActivityArgument.h"

#include "cli/CommandError.h"
#include "review/ActivityReader.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <cstddef>
#include <utility>

namespace tempodial {

namespace {

/// A moment `YYYY-MM-DDTHH:MM`, or `HH:MM` of that day.
Date MomentIn(const std::string& text, Date today)
{
    constexpr std::size_t TimeSize = 5;
    try {
        return ToMoment("MOMENT", text.size() == TimeSize ? IsoDay(today) + "T" + text : text);
    } catch (const UsageError&) {
        throw UsageError("\"" + text
            + "\" names no activity: give its number, such as @12, or a moment as YYYY-MM-DDTHH:MM, or HH:MM today");
    }
}

}

ActivityArgument::ActivityArgument(std::string text, Date today)
    : mText(std::move(text))
{
    if (mText.starts_with('@')) {
        mNumber = ToActivityNumber(mText);
    } else {
        mMoment = MomentIn(mText, today);
    }
}

Activity ActivityArgument::Find(const Profile& profile) const
{
    auto activity = mNumber ? ActivityNumbered(profile, *mNumber) : ActivityAt(profile, mMoment);
    if (!activity) {
        throw CommandError(mNumber
                ? "there is no activity " + mText + ": see \"tempodial list --ids\" for those there are"
                : "there is no activity at " + mText + ": see \"tempodial list\" for those there are");
    }
    return std::move(*activity);
}

}
