#include "terminal/ProfileArguments.h"

#include "host/system/IcuLocaleFormats.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <CLI/CLI.hpp>

namespace tempodial {

void ProfileArguments::Declare(CLI::App& app)
{
    app.add_option("--profile", mProfile,
           "The folder that holds all that belongs to you; default\nTEMPODIAL_PROFILE, else ~/.local/share/tempodial")
        ->option_text("DIR");
    app.add_option("--locale", mLocale, "The locale of dates and names, such as en_US; default\nfrom the environment")
        ->option_text("NAME");
    app.add_option("--now", mNow, "Run as if it were this moment; the clock goes on from there")
        ->option_text("YYYY-MM-DDTHH:MM:SS");
}

ProfileOptions ProfileArguments::Options() const
{
    ProfileOptions options { .profile = mProfile, .locale = mLocale };
    if (mProfile && mProfile->empty()) {
        throw UsageError("--profile names no folder: give the path of one");
    }
    if (mLocale && !IcuLocaleFormats::IsKnown(*mLocale)) {
        throw UsageError("there is no locale \"" + *mLocale + "\": give one such as en_US or de_DE");
    }
    if (mNow) {
        options.now = ToMomentWithSeconds("--now", *mNow);
    }
    return options;
}

}
