#include "track/ControlServer.h"

#include "base/Failure.h"
#include "host/files/PathOperations.h"
#include "host/files/PrivateFiles.h"
#include "track/ControlSocket.h"

#include <cerrno>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// How long somebody who has come may take to say what for.
constexpr int AskingMilliseconds = 500;

[[noreturn]] void RefuseSocket(const std::string& path, const std::string& reason)
{
    throw std::runtime_error("the socket " + path + " can't be made: " + reason
        + ": see to the permissions of its folder, or set XDG_RUNTIME_DIR to a folder of your own");
}

void MakeFolderOf(const std::string& path)
{
    try {
        MakeFolder(NativePath::Exactly(NativePath::Exactly(path).Folder()));
    } catch (const Failure& failure) {
        if (!failure.Is(Error::FileExists)) {
            RefuseSocket(path, failure.Description());
        }
    }
}

}

ControlServer::ControlServer(std::string path)
    : mPath(std::move(path))
    , mNumber(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
{
    if (mPath.size() >= sizeof(sockaddr_un::sun_path)) {
        ::close(mNumber);
        RefuseSocket(mPath, "its path is too long");
    }
    MakeFolderOf(mPath);
    Discard(NativePath::Exactly(mPath)); // of a recorder that was killed, since this one holds the lock
    const auto address = ControlSocket::AddressOf(mPath);
    const PrivateFiles mode;
    const bool isBound = ::bind(mNumber, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0
        && ::listen(mNumber, SOMAXCONN) == 0;
    if (!isBound) {
        const SystemFailure failure(errno);
        ::close(mNumber);
        RefuseSocket(mPath, failure.Reason());
    }
}

ControlServer::~ControlServer()
{
    ::close(mNumber);
    Discard(NativePath::Exactly(mPath));
}

void ControlServer::Serve(const std::function<ControlMessage(const ControlMessage&)>& answer) const
{
    for (;;) {
        const ControlSocket other(::accept4(mNumber, nullptr, nullptr, SOCK_CLOEXEC));
        if (other.Number() < 0) {
            return;
        }
        if (const auto asked = other.ReceiveAll(AskingMilliseconds)) {
            other.SendAll(answer(ControlMessage(*asked)).Text());
        }
    }
}

}
