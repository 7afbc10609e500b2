#include "portable/XmlText.h"

#include "base/Utf8.h"

#include <algorithm>

namespace tempodial {

bool IsXmlText(std::string_view text)
{
    const auto isForbidden = [](char character) {
        return static_cast<unsigned char>(character) < ' ' && character != '\t' && character != '\n'
            && character != '\r';
    };
    return IsUtf8(text) && std::none_of(text.begin(), text.end(), isForbidden)
        && text.find("\uFFFE") == std::string_view::npos && text.find("\uFFFF") == std::string_view::npos;
}

}
