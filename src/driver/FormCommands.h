#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"

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
    Json Forms();

    DriverHost& mHost;
};

}
