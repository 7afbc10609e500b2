#include "engine/core/CoreFixture.h"

namespace tempodial {

CoreFixture::~CoreFixture()
{
    mConnect.OnDisconnection();
}

void CoreFixture::ConnectAddIn()
{
    mConnect.OnConnection(mApplication, "Tempodial.Connect");
}

TempodialMain& CoreFixture::Main() const
{
    return *mConnect.Main();
}

void CoreFixture::Set(const std::string& value, const Variant& content)
{
    mRegistry->values[{ Hive::CurrentUser, R"(Software\Lindenfold\Tempodial)", value }] = content;
}

Variant CoreFixture::Get(const std::string& value)
{
    return mRegistry->Read(Hive::CurrentUser, R"(Software\Lindenfold\Tempodial)", value, RegistryAccess::Query);
}

bool CoreFixture::HasTraceFile() const
{
    return mFolder.Has("Tempodial/WorkLogTrace1.out");
}

std::vector<std::string> CoreFixture::Traced()
{
    std::vector<std::string> lines;
    const auto text = mFolder.Read("Tempodial/WorkLogTrace1.out");
    for (const auto& line : Split(text.substr(mRead), CrLf)) {
        const auto context = line.find("M: ");
        if (context != std::string::npos) {
            lines.push_back(line.substr(line.find(' ', context + 3) + 1));
        }
    }
    mRead = text.size();
    return lines;
}

}
