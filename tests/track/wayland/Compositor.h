#pragma once

#include "support/StartedProcess.h"
#include "support/TempFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A compositor without a screen, found by WAYLAND_DISPLAY as long as it lives.
class Compositor
{
public:
    enum class Kind { Sway, Weston };

    explicit Compositor(Kind kind);
    ~Compositor();
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    /// A terminal with an app id and a title.
    std::unique_ptr<StartedProcess> Show(const std::string& appId, const std::string& title) const;
    /// Waits until a window with an app id is there.
    void Await(const std::string& appId) const;
    /// Gives the terminal with an app id another title.
    void Retitle(const std::string& appId, const std::string& title) const;
    /// Runs a command of sway; its exit status.
    int Command(const std::string& command) const;
    /// Presses and releases a key.
    void Press(const std::string& key) const;
    void End() { mCompositor->End(); }

private:
    std::vector<std::string> Surroundings() const;
    /// The first file of the compositor's folder whose name begins so; waits for it.
    std::string FirstFile(const std::string& beginning) const;

    TempFolder mFolder;
    std::unique_ptr<StartedProcess> mCompositor;
    std::string mDisplay;
};

}
