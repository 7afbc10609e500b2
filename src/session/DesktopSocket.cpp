#include "session/DesktopSocket.h"

#include "base/Failure.h"
#include "base/Fnv1a.h"
#include "host/files/PathOperations.h"
#include "host/files/PrivateFiles.h"
#include "host/files/Uninterrupted.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace tempodial {

namespace {

/// Longer lines are no calls.
constexpr std::size_t MostLine = 64 << 10;
constexpr int WaitingCallers = 8;
/// The seconds that one end waits for the other.
constexpr time_t CallerPatience = 3;
constexpr time_t ServerPatience = 1;

/// A socket that is closed again.
class OwnSocket
{
public:
    explicit OwnSocket(int number)
        : mNumber(number)
    {
    }
    ~OwnSocket() { ::close(mNumber); }
    OwnSocket(const OwnSocket&) = delete;
    OwnSocket& operator=(const OwnSocket&) = delete;

    int Number() const { return mNumber; }
    void BePatientFor(time_t seconds) const
    {
        const timeval limit { seconds, 0 };
        ::setsockopt(mNumber, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
        ::setsockopt(mNumber, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    }
    /// Sends a line; false when the other end doesn't take it.
    bool Send(const std::string& line) const
    {
        const auto text = line + "\n";
        for (std::size_t sent = 0; sent < text.size();) {
            const auto count
                = Uninterrupted([&] { return ::send(mNumber, text.data() + sent, text.size() - sent, MSG_NOSIGNAL); });
            if (count <= 0) {
                return false;
            }
            sent += static_cast<std::size_t>(count);
        }
        return true;
    }
    /// The next line; nothing when none comes whole.
    std::optional<std::string> Receive() const
    {
        std::string text;
        std::array<char, 4096> piece {};
        while (text.size() <= MostLine) {
            const auto count = Uninterrupted([&] { return ::recv(mNumber, piece.data(), piece.size(), 0); });
            if (count <= 0) {
                return std::nullopt;
            }
            text.append(piece.data(), static_cast<std::size_t>(count));
            if (const auto end = text.find('\n'); end != std::string::npos) {
                return text.substr(0, end);
            }
        }
        return std::nullopt;
    }

private:
    int mNumber;
};

/// The address of a path; nothing when it is too long for one.
std::optional<sockaddr_un> AddressOf(const std::string& path)
{
    sockaddr_un address {};
    if (path.size() >= sizeof address.sun_path) {
        return std::nullopt;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(&address.sun_path[0], path.data(), path.size());
    return address;
}

const sockaddr* Plain(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

bool IsOwnUser(const OwnSocket& caller)
{
    ucred peer {};
    socklen_t size = sizeof peer;
    return ::getsockopt(caller.Number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::geteuid();
}

[[noreturn]] void Refuse(const std::string& path, int reason)
{
    throw Failure(Error::PermissionDenied, "Can't listen at " + path + ": " + std::strerror(reason));
}

}

DesktopSocket::DesktopSocket(const std::string& profile)
    : mPath(PathFor(profile))
    , mNumber(-1)
{
    const auto address = AddressOf(mPath);
    if (!address) {
        Refuse(mPath, ENAMETOOLONG);
    }
    // One that is there was left by a process that is gone, since this one holds the profile.
    Discard(NativePath::Exactly(mPath));
    mNumber = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const PrivateFiles scope;
    if (mNumber < 0 || ::bind(mNumber, Plain(*address), sizeof *address) != 0
        || ::listen(mNumber, WaitingCallers) != 0) {
        const auto reason = errno;
        if (mNumber >= 0) {
            ::close(mNumber);
        }
        Refuse(mPath, reason);
    }
}

DesktopSocket::~DesktopSocket()
{
    ::close(mNumber);
    Discard(NativePath::Exactly(mPath));
}

void DesktopSocket::AnswerCallers(const Answering& answer) const
{
    while (true) {
        const auto number = Uninterrupted([this] { return ::accept4(mNumber, nullptr, nullptr, SOCK_CLOEXEC); });
        if (number < 0) {
            return;
        }
        const OwnSocket caller(number);
        caller.BePatientFor(ServerPatience);
        if (!IsOwnUser(caller)) {
            continue;
        }
        if (const auto line = caller.Receive()) {
            caller.Send(answer(*line));
        }
    }
}

std::string DesktopSocket::PathFor(const std::string& profile)
{
    std::array<char, 17> hash {};
    std::snprintf(hash.data(), hash.size(), "%016llx", static_cast<unsigned long long>(Fnv1a(profile).Hash()));
    const auto* runtime = std::getenv("XDG_RUNTIME_DIR");
    const auto folder = runtime != nullptr && *runtime == '/' ? std::string(runtime) : profile;
    return folder + "/tempodial-" + hash.data() + ".sock";
}

std::optional<std::string> DesktopSocket::Ask(const std::string& profile, const std::string& line)
{
    const auto address = AddressOf(PathFor(profile));
    const OwnSocket caller(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    caller.BePatientFor(CallerPatience);
    if (!address || Uninterrupted([&] { return ::connect(caller.Number(), Plain(*address), sizeof *address); }) != 0) {
        return std::nullopt;
    }
    return caller.Send(line) ? caller.Receive().value_or("") : "";
}

}
