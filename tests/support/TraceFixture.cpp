#include "support/TraceFixture.h"

#include "base/Text.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "host/system/HostFileSystem.h"
#include "host/system/IcuLocaleFormats.h"

namespace tempodial {

TraceFixture::TraceFixture()
{
    mPlatform->fileSystem = MakeRef<HostFileSystem>(mFolder.Path());
    mPlatform->clock = mClock;
    mPlatform->formats = MakeRef<IcuLocaleFormats>("en_US");
    const auto utils = MakeRef<TempodialCommonUtils>(mPlatform);
    utils->Initialize(nullptr, "Tempodial", "16.0");
    mLog = MakeRef<TempodialDebugLog>(mPlatform);
    mLog->Initialize(utils, "1.2.0", "WorkLogTrace1.out", "WorkLogTrace2.out", 0);
}

TraceFixture::~TraceFixture() = default;

std::vector<std::string> TraceFixture::Traced()
{
    std::vector<std::string> lines;
    auto text = mFolder.Read("Tempodial/WorkLogTrace1.out");
    for (const auto& line : Split(text.size() < mRead ? text : text.substr(mRead), CrLf)) {
        const auto head = line.find(": ");
        if (head != std::string::npos && !line.starts_with("Tempodial Version")) {
            lines.push_back(line.substr(head + 2));
        }
    }
    mRead = text.size();
    return lines;
}

void TraceFixture::ForgetTrace()
{
    Traced();
}

void TraceFixture::EmptyTrace()
{
    mFolder.Write("Tempodial/WorkLogTrace1.out", "");
    ForgetTrace();
}

}
