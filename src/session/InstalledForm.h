#pragma once

#include "session/ProfileOptions.h"

namespace tempodial {

/// Fails with a `ProfileError` when the program isn't installed as a whole: when the form of activities is in neither
/// the program's own folder nor one that the profile names. Makes and changes nothing; answers the options.
const ProfileOptions& RequireForm(const ProfileOptions& options);

}
