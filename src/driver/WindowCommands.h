#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"
#include "host/windows/HostApplication.h"
#include "host/windows/HostExplorer.h"
#include "host/windows/HostInspector.h"

namespace tempodial {

/// The commands on explorers and inspectors, and on what they show.
class WindowCommands
{
public:
    explicit WindowCommands(DriverHost& host)
        : mHost(host)
    {
    }

    void AddTo(CommandTable& table);

private:
    Json OpenExplorer(const Request& request);
    Json MakeBarsReady(const Request& request);
    Json ActivateExplorer(const Request& request);
    Json CloseExplorer(const Request& request);
    Json KillExplorer(const Request& request);
    Json GoTo(const Request& request);
    Json ShowBeside(const Request& request);
    Json Select(const Request& request);
    Json PickView(const Request& request);
    Json ExplorerState(const Request& request);
    Json OpenInspector(const Request& request);
    Json Edit(const Request& request);
    Json Save(const Request& request);
    Json Close(const Request& request);
    Json InspectorState(const Request& request);
    Json Windows();
    Json Click(const Request& request);

    /// The person; fails when no host was started.
    tempodial::Hand& Hand()
    {
        Application();
        return mHost.Hand();
    }
    /// The host's windows; fails when no host was started.
    HostApplication& Application() const { return mHost.Windows(); }
    /// The window of a number; one that isn't open fails.
    Ref<HostExplorer> Explorer(const Request& request) const;
    /// The window of a number; one that isn't open fails.
    Ref<HostInspector> Inspector(const Request& request) const;

    DriverHost& mHost;
};

}
