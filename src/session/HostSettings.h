#pragma once

#include "base/Ref.h"
#include "host/windows/HostApplication.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "session/Imports.h"
#include "session/LoadedAddIn.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

/// How a host is started: what a person finds there, and what the add-in sees of it.
struct HostSettings
{
    std::int32_t explorers = 1;
    /// The folder that they show, nothing for the inbox.
    Ref<MAPIFolder> folder = nullptr;
    std::string version = HostApplication::DefaultVersion;
    /// True to tell of the mail logon once the add-in is connected.
    bool logon = true;
    /// What imports go by.
    Imports imports = Imports::ByHistory;
    /// Makes what the add-in gets in the place of the application, nothing for the application itself.
    std::function<Ref<Application>(const Ref<Application>& application)> seen = nullptr;
    /// Called with the host before the first of its windows opens, for whoever draws them.
    std::function<void(const Ref<HostApplication>& application)> made = nullptr;
    /// Loads the add-in from elsewhere, nothing for the one in this program.
    std::function<Ref<LoadedAddIn>()> load = nullptr;
};

}
