#pragma once

#include "platform/system/Shell.h"

#include <functional>
#include <string>

namespace tempodial {

/// The desktop around the program.
class HostShell : public Shell
{
public:
    /// What opens a document or an address.
    using Opener = std::function<void(const std::string& document)>;

    /// Has documents opened by the desktop, or by another opener.
    explicit HostShell(Opener opener = &OpenOnDesktop);

    void Open(const std::string& document) override;
    std::int32_t ThreadId() override;

private:
    /// Starts `xdg-open`, which goes on by itself; fails (7) when no process can be made.
    static void OpenOnDesktop(const std::string& document);

    Opener mOpener;
};

}
