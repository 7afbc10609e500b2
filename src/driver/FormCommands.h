#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"
#include "forms/FormHands.h"

#include <string>

namespace tempodial {

/// The commands on the add-in's forms.
class FormCommands
{
public:
    explicit FormCommands(DriverHost& host)
        : mHost(host)
    {
    }

    void AddTo(CommandTable& table);

private:
    /// Clicks a button, as a step where that is one.
    void Click(const FormKey& form, const std::string& control);
    Json Forms();

    DriverHost& mHost;
};

}
