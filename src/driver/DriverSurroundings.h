#pragma once

#include "base/Ref.h"
#include "driver/DriverMessageBox.h"
#include "driver/Hand.h"
#include "driver/remote/RemotePrograms.h"
#include "forms/FormHands.h"
#include "platform/controls/EventPump.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

class DriverHost;

/// What a driver has around it; what is left out is that of a program without a screen.
struct DriverSurroundings
{
    /// The programs of the add-in for Windows, which takes the place of the one in this program, and the name of the
    /// locale that it is to have.
    std::optional<RemotePrograms> programs {};
    std::string locale {};
    /// Lets pending messages be processed.
    Ref<EventPump> eventPump = nullptr;
    /// Shows message boxes.
    DriverMessageBox::Shower showMessage {};
    /// Makes the person who does what commands ask for, for a host that outlives that person.
    std::function<Ref<Hand>(DriverHost& host)> person {};
    /// A person at windows of forms, which make steps of clicks themselves.
    Ref<FormHands> forms = nullptr;
    /// What can be seen otherwise than the models have it, each a text; asked behind each command.
    std::function<std::vector<std::string>()> differences {};
};

}
