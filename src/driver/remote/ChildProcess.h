#pragma once

#include "wire/ByteChannel.h"

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tempodial {

/// A program that was started, with its standard streams as the channel to it; both stay on one processor from then on.
/// It is ended with this object.
class ChildProcess final : public ByteChannel
{
public:
    /// Starts a program, which is looked for where programs are; whoever waits for it longer than that gives it up.
    /// Fails with `WireBroken`.
    ChildProcess(const std::vector<std::string>& arguments, std::chrono::seconds patience);
    ~ChildProcess() override;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    std::size_t Read(char* buffer, std::size_t size) override;
    void Write(std::string_view bytes) override;
    /// Closes its input, waits for its end and gives its exit status; -1 when it was ended by force.
    int Finish();

private:
    /// Waits for its end, for that long; then ends it by force.
    void Wait(std::chrono::seconds patience);
    void CloseInput();

    std::chrono::seconds mPatience;
    pid_t mProcess = -1;
    int mInput = -1;
    int mOutput = -1;
    int mStatus = -1;
};

}
