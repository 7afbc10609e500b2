#include "desktop/qt/TrackerSilence.h"

#include "DesktopFixture.h"
#include "desktop/qt/SelectionBar.h"
#include "session/ProductFacts.h"

#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <vector>

namespace tempodial {

/// A tracker whose last line was written at noon, four hours ago.
class TrackerSilenceTest : public DesktopFixture
{
protected:
    TrackerSilenceTest()
    {
        const auto path = mDesk->Profile().DataFolder() + "/" + TrackerFileName(On(17, 0).DayKey());
        std::filesystem::create_directories(mDesk->Profile().DataFolder());
        std::ofstream(path) << "<day/>\n";
        std::tm noon {};
        noon.tm_year = 106;
        noon.tm_mon = 10;
        noon.tm_mday = 17;
        noon.tm_hour = 12;
        noon.tm_isdst = -1;
        const timespec when { std::mktime(&noon), 0 };
        const timespec times[] { when, when };
        EXPECT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    }

    std::vector<std::string> mHidden;
    TrackerSilence mSilence { *mDesk, [this](const std::string& text) { mHidden.push_back(text); } };
};

TEST_F(TrackerSilenceTest, WindowIsSeen_SaysSoThere)
{
    auto& window = Open();
    mSilence.Look();
    EXPECT_EQ(window.Foot().Said(),
        "The tracker has written nothing for two hours of work: see whether it runs, and start it.");
    EXPECT_TRUE(mHidden.empty());
    window.Say({});
    mSilence.Look();
    EXPECT_EQ(window.Foot().Said(), "") << "it is said once";
}

TEST_F(TrackerSilenceTest, NoWindowIsSeen_IsSaidElsewhere)
{
    Open().hide();
    mSilence.Look();
    EXPECT_EQ(mHidden.size(), 1U);
}

TEST_F(TrackerSilenceTest, NotWanted_IsNotSaid)
{
    mDesk->Change([](DesktopSettings& settings) { settings.notifies = false; });
    mSilence.Look();
    EXPECT_TRUE(mHidden.empty());
}

}
