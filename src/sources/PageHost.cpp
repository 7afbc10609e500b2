#include "sources/PageHost.h"

namespace tempodial {

std::string PageHost(std::string_view url)
{
    const auto scheme = url.find("://");
    if (scheme == std::string_view::npos || !url.starts_with("http")) {
        return {};
    }
    url.remove_prefix(scheme + 3);
    url = url.substr(0, url.find_first_of("/?#"));
    const auto account = url.rfind('@');
    url.remove_prefix(account == std::string_view::npos ? 0 : account + 1);
    return std::string(url.substr(0, url.find(':')));
}

}
