#include "track/ControlClient.h"

#include "track/ControlSocket.h"

#include <sys/socket.h>

namespace tempodial {

namespace {

/// How long a recorder may take that waits for its disk.
constexpr int AnsweringMilliseconds = 10000;

}

std::optional<ControlMessage> AskRecorder(const std::string& path, const ControlMessage& request)
{
    if (path.size() >= sizeof(sockaddr_un::sun_path)) {
        return std::nullopt;
    }
    const auto socket = ControlSocket::New();
    const auto address = ControlSocket::AddressOf(path);
    if (::connect(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0
        || !socket.SendAll(request.Text())) {
        return std::nullopt;
    }
    const auto answer = socket.ReceiveAll(AnsweringMilliseconds);
    return answer ? std::optional(ControlMessage(*answer)) : std::nullopt;
}

}
