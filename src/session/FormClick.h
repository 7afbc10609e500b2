#pragma once

#include "session/Profile.h"

#include <functional>
#include <string>

namespace tempodial {

/// A person clicks a button of a form of that class and title. What the dialogs of projects change is a step by the
/// form's title, and in the one that sets projects that person chooses them. Fails as the profile's mailbox and
/// registry do.
void ClickAsStep(
    const Profile& profile, const std::string& className, const std::string& title, const std::function<void()>& click);

}
