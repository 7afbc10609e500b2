#include "session/KnownLocale.h"

#include "host/system/IcuLocaleFormats.h"

namespace tempodial {

bool IsKnownLocale(const std::string& name)
{
    return IcuLocaleFormats::IsKnown(name);
}

}
