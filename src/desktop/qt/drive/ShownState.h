#pragma once

#include "base/Ref.h"
#include "host/windows/HostExplorer.h"

#include <functional>
#include <string>
#include <vector>

namespace tempodial {

class Desk;
class MainWindow;

/// What the windows show, against the models: which windows there are, and in each the menus and buttons, the
/// activities of its days, and which of them are selected.
class ShownState
{
public:
    using WindowFinder = std::function<MainWindow*(const Ref<HostExplorer>& explorer)>;

    /// What is given must outlive it.
    ShownState(const Desk& desk, WindowFinder windowOf);

    /// What is shown otherwise than the models have it, each a sentence.
    std::vector<std::string> Differences() const;

private:
    const Desk& mDesk;
    WindowFinder mWindowOf;
};

}
