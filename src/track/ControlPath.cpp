#include "track/ControlPath.h"

#include "base/Fnv1a.h"
#include "base/TrackerFile.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sys/un.h>
#include <unistd.h>

namespace tempodial {

namespace {

/// A short name for a path, of hexadecimal digits.
std::string NameOf(const std::string& path)
{
    constexpr int DigitBits = 4;
    constexpr std::uint64_t DigitMask = 0xf;
    auto hash = Fnv1a(path).Hash();
    std::array<char, 16> digits {};
    for (auto& digit : digits) {
        digit = "0123456789abcdef"[hash & DigitMask];
        hash >>= DigitBits;
    }
    return { digits.begin(), digits.end() };
}

/// The real path of a profile, which doesn't need to be there.
std::string PlaceOf(const std::string& profile)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(profile.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : profile;
}

/// The socket in the folder of a session; empty when that is no folder, or the path too long for one.
std::string SocketIn(const std::string& sessionFolder, const std::string& place)
{
    const auto path = sessionFolder + "/tempodial/track-" + NameOf(place) + ".sock";
    return sessionFolder.starts_with('/') && path.size() < sizeof(sockaddr_un::sun_path) ? path : std::string();
}

}

std::string ControlPathOf(const std::string& profile)
{
    return ControlPathsOf(profile).front();
}

std::vector<std::string> ControlPathsOf(const std::string& profile)
{
    const auto place = PlaceOf(profile);
    const auto* runtime = std::getenv("XDG_RUNTIME_DIR");
    const auto ofSession = runtime == nullptr ? std::string() : SocketIn(runtime, place);
    const auto ofUser = SocketIn("/run/user/" + std::to_string(::getuid()), place);
    const auto ofProfile = place + "/" + TrackerFolderName + "/track.sock";
    return ofSession.empty() ? std::vector { ofProfile, ofUser } : std::vector { ofSession, ofUser, ofProfile };
}

}
