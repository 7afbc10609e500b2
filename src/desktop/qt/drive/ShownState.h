#pragma once

#include <string>
#include <vector>

namespace tempodial {

class Desk;
class HostExplorer;
class HostWindows;
class MainWindow;

/// What the windows show, against the models: which windows there are; in each the title, the menus and buttons, the
/// activities of its days in the view that is shown, and which of them are selected; the forms; the items.
class ShownState
{
public:
    /// What is given must outlive it.
    ShownState(Desk& desk, const HostWindows& windows)
        : mDesk(desk)
        , mWindows(windows)
    {
    }

    /// What is shown otherwise than the models have it, each a sentence.
    std::vector<std::string> Differences() const;

private:
    std::vector<std::string> DifferencesOf(HostExplorer& explorer, MainWindow& window) const;

    Desk& mDesk;
    const HostWindows& mWindows;
};

}
