#pragma once

#include "forms/ButtonModel.h"
#include "forms/FormModel.h"
#include "session/Profile.h"

namespace tempodial {

/// A person clicks a button of a form. What the dialogs of projects change is a step by the form's title, and in the
/// one that sets projects that person chooses them. Fails as the profile's mailbox and registry do.
void ClickButton(const Profile& profile, const FormModel& form, ButtonModel& button);

}
