#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"

namespace tempodial {

/// The commands on the host as a whole and on its surroundings.
class HostCommands
{
public:
    explicit HostCommands(DriverHost& host)
        : mHost(host)
    {
    }

    void AddTo(CommandTable& table);

private:
    Json Start(const Request& request);
    Json Logon();
    Json Stop();
    Json Quit();
    Json Clock(const Request& request);
    Json Answers(const Request& request);
    Json Fail(const Request& request);
    Json Trace(const Request& request);
    Json Shell();
    Json Registry(const Request& request);

    DriverHost& mHost;
};

}
