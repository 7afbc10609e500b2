#include "track/ControlPath.h"

#include "base/Fnv1a.h"
#include "base/TrackerFile.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sys/un.h>

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

}

std::string ControlPathOf(const std::string& profile)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(profile.c_str(), nullptr), &std::free);
    const auto place = real ? std::string(real.get()) : profile;
    const auto* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime == '/') {
        auto path = std::string(runtime) + "/tempodial/track-" + NameOf(place) + ".sock";
        if (path.size() < sizeof(sockaddr_un::sun_path)) {
            return path;
        }
    }
    return place + "/" + TrackerFolderName + "/track.sock";
}

}
