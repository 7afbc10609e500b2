#include "support/DriverFixture.h"

#include <filesystem>
#include <fstream>

namespace tempodial {

DriverFixture::~DriverFixture()
{
    if (mDriver) {
        mDriver->Exit();
    }
}

Json DriverFixture::Do(const Json& command)
{
    auto answer = mDriver->Do(command);
    EXPECT_EQ(answer.at("ok"), true) << command << "\n" << answer;
    return answer;
}

std::string DriverFixture::Refused(const Json& command)
{
    const auto answer = mDriver->Do(command);
    EXPECT_EQ(answer.at("ok"), false) << command << "\n" << answer;
    return answer.value("error", "");
}

void DriverFixture::Restart()
{
    mDriver->Exit();
    mDriver.reset();
    mDriver = std::make_unique<Driver>(mOptions);
}

std::string DriverFixture::Activity(const std::string& folder)
{
    return Do(
        { { "do", "item.create" }, { "folder", folder }, { "messageClass", "IPM.Appointment.TDActivity1" },
            { "subject", "[No Project] Word, a" }, { "start", "2006-10-10T09:00:00" }, { "end", "2006-10-10T09:05:00" },
            { "properties",
                { { "Project", "No Project" }, { "Type", "Word" }, { "Description", "a" },
                    { "Day", "2006-10-10T00:00:00" } } } })
        .at("entryId");
}

std::string DriverFixture::DataPath(const std::string& name) const
{
    return mFolder.Path("Tempodial/" + name);
}

void DriverFixture::WriteTracker(const std::string& dayKey, const std::vector<std::string>& slots) const
{
    std::filesystem::create_directories(mFolder.Path("Tempodial"));
    std::ofstream(DataPath("tracker_granules" + dayKey + ".out"), std::ios::binary) << TrackerText(slots);
}

std::string DriverFixture::Slot(int hour, int minute, const std::string& document)
{
    const auto begin = (hour * 60 + minute) * 60;
    return WordSlot(begin, begin + 300, document);
}

}
