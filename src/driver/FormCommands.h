#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"
#include "forms/FormModel.h"

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
    Json Type(const Request& request);
    Json Choose(const Request& request);
    Json Check(const Request& request);
    Json Click(const Request& request);
    Json Close(const Request& request);

    /// The form of a number, or the newest visible one of a class.
    Ref<FormModel> Form(const Request& request) const;
    /// The control that a command is for. One that isn't there, or that a person can't work, fails.
    Ref<Control> WorkableControl(const Request& request) const;

    DriverHost& mHost;
};

}
