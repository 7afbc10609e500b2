#pragma once

#include "engine/foundation/TracedObject.h"

#include <string>

namespace tempodial {

/// Makes plain text fit for HTML: the special characters and the links.
class HtmlText final : public TracedObject
{
public:
    HtmlText(Ref<const Platform> platform, Ref<TempodialDebugLog> log);

    /// Escapes "&", ">" and "<" in its argument, and answers it; a text that was escaped before stays the same.
    std::string HTMLEscape(std::string& text);
    /// The text with each address of the web made a link.
    std::string HTMLMogrify(std::string text);
};

}
