#include "workload/TrackerFiles.h"

#include "support/TempFolder.h"
#include "workload/TrackerDay.h"

#include <stdexcept>

namespace tempodial {

namespace {

TEST(TrackerFilesTest, Write_TwoDays_HaveAFileEach)
{
    const TempFolder folder;
    TrackerFiles(folder.Path("")).Write(Date::FromYearMonthDay(2025, 6, 30), 2, 20);
    for (const auto* name : { "tracker_granules20250629.out", "tracker_granules20250630.out" }) {
        const auto text = folder.Read(name);
        EXPECT_TRUE(text.starts_with("benchmark tracker\n<slot>")) << name;
        EXPECT_EQ(text.size(), sizeof("benchmark tracker\n") - 1 + 20 * (TrackerDay::LineSize + 1));
    }
    EXPECT_NE(folder.Read("tracker_granules20250629.out"), folder.Read("tracker_granules20250630.out"));
}

TEST(TrackerFilesTest, Write_FolderIsAbsent_Fails)
{
    const TempFolder folder;
    EXPECT_THROW(
        TrackerFiles(folder.Path("absent")).Write(Date::FromYearMonthDay(2025, 6, 30), 1, 10), std::runtime_error);
}

}

}
