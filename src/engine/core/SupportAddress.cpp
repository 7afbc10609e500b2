#include "engine/core/SupportAddress.h"

#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"

namespace tempodial {

std::string UsualSupportAddress()
{
    TempodialStrings strings;
    strings.Initialize();
    return strings.mReportRecip;
}

void SetSupportAddress(TempodialMain& main, const std::string& address)
{
    auto& strings = *main.mStrings;
    strings.mReport2002header = Replace(strings.mReport2002header, strings.mReportRecip, address);
    strings.mReportRecip = address;
}

}
