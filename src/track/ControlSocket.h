#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/un.h>
#include <utility>

namespace tempodial {

/// An open socket of this machine.
class ControlSocket
{
public:
    /// Takes its number, negative for none.
    explicit ControlSocket(int number)
        : mNumber(number)
    {
    }
    ControlSocket(ControlSocket&& other) noexcept
        : mNumber(std::exchange(other.mNumber, -1))
    {
    }
    ControlSocket& operator=(ControlSocket&&) = delete;
    ControlSocket(const ControlSocket&) = delete;
    ControlSocket& operator=(const ControlSocket&) = delete;
    ~ControlSocket();

    int Number() const { return mNumber; }
    /// Sends a text and says that no more comes; false when nobody listens.
    bool SendAll(std::string_view text) const;
    /// Receives until no more comes, for at most so many milliseconds in which nothing does; nothing when the other
    /// side says nothing for so long.
    std::optional<std::string> ReceiveAll(int milliseconds) const;

    /// The address of a path, which must not be too long for one.
    static sockaddr_un AddressOf(const std::string& path);
    /// A new one that doesn't wait for others and is closed in programs that are run.
    static ControlSocket New();

private:
    int mNumber;
};

}
