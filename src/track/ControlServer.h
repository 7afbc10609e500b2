#pragma once

#include "track/ControlMessage.h"

#include <functional>
#include <string>

namespace tempodial {

/// The socket by which a recorder that runs is worked.
class ControlServer
{
public:
    /// Listens at a path, in the place of what a recorder that was killed has left there. Fails with
    /// `std::runtime_error`.
    explicit ControlServer(std::string path);
    ~ControlServer();
    ControlServer(const ControlServer&) = delete;
    ControlServer& operator=(const ControlServer&) = delete;

    /// What is waited for.
    int Descriptor() const { return mNumber; }
    /// Answers those who wait, one request each. Who doesn't ask at once, or doesn't listen, is left.
    void Serve(const std::function<ControlMessage(const ControlMessage&)>& answer) const;

private:
    std::string mPath;
    int mNumber;
};

}
