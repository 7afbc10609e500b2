#include "track/ControlSocket.h"

#include "host/files/Uninterrupted.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tempodial {

namespace {

constexpr std::size_t LargestMessage = 65536;

}

ControlSocket::~ControlSocket()
{
    if (mNumber >= 0) {
        ::close(mNumber);
    }
}

bool ControlSocket::SendAll(std::string_view text) const
{
    while (!text.empty()) {
        const auto count = Uninterrupted([&] { return ::send(mNumber, text.data(), text.size(), MSG_NOSIGNAL); });
        if (count < 0) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::shutdown(mNumber, SHUT_WR) == 0;
}

std::optional<std::string> ControlSocket::ReceiveAll(int milliseconds) const
{
    std::string text;
    std::array<char, 4096> buffer {};
    while (text.size() < LargestMessage) {
        pollfd waited { mNumber, POLLIN, 0 };
        if (Uninterrupted([&] { return ::poll(&waited, 1, milliseconds); }) <= 0) {
            return std::nullopt;
        }
        const auto count = Uninterrupted([&] { return ::recv(mNumber, buffer.data(), buffer.size(), 0); });
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) {
            return text;
        }
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

sockaddr_un ControlSocket::AddressOf(const std::string& path)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    path.copy(std::begin(address.sun_path), std::size(address.sun_path) - 1);
    return address;
}

ControlSocket ControlSocket::New()
{
    return ControlSocket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

}
