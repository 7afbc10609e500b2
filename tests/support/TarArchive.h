#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// Something in an archive as a test writes it, whatever it is.
struct TarMember
{
    std::string name;
    std::string content;
    /// What it is: '0' a file, '1' a link to a member, '2' a symbolic link, '3' and '4' devices, '5' a folder, '6' a
    /// pipe.
    char type = '0';
    std::string link;
};

/// An archive that isn't compressed.
std::string Tar(const std::vector<TarMember>& members);
/// A compressed file of those bytes, which takes no less room than they do.
std::string Gzip(std::string_view bytes);

}
