#include "terminal/ProfileArguments.h"

#include "session/KnownLocale.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

namespace tempodial {

void ProfileArguments::Declare(ArgumentList& arguments)
{
    arguments.Optional("--profile DIR", mProfile,
        "The folder that holds all that belongs to you; default\nTEMPODIAL_PROFILE, else ~/.local/share/tempodial");
    arguments.Optional(
        "--locale NAME", mLocale, "The locale of dates and names, such as en_US; default\nfrom the environment");
    arguments.Optional(
        "--now YYYY-MM-DDTHH:MM:SS", mNow, "Run as if it were this moment; the clock goes on from there");
}

ProfileOptions ProfileArguments::Options() const
{
    ProfileOptions options { .profile = mProfile, .locale = mLocale };
    if (mProfile && mProfile->empty()) {
        throw UsageError("--profile names no folder: give the path of one");
    }
    if (mLocale && !IsKnownLocale(*mLocale)) {
        throw UsageError("there is no locale " + InQuotes(*mLocale) + ": give one such as en_US or de_DE");
    }
    if (mNow) {
        options.now = ToMomentWithSeconds("--now", *mNow);
    }
    return options;
}

}
