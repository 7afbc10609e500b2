#include "host/system/Letters.h"

#include <unicode/uchar.h>

namespace tempodial {

bool IsLetterOrDigit(char32_t character)
{
    return u_isalnum(static_cast<UChar32>(character)) != 0;
}

}
