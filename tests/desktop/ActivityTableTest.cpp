#include "desktop/ActivityTable.h"

#include "desktop/LogFixture.h"

namespace tempodial {

namespace {

class ActivityTableTest : public LogFixture
{
protected:
    ActivityTable Table(Titles titles = Titles::Shown)
    {
        Activity activity;
        activity.start = On(10, 9, 5);
        activity.end = On(10, 10, 15);
        activity.duration = 70;
        activity.project = "Gar\tden";
        activity.type = "Word";
        activity.description = "=a,\nb";
        activity.people = "Ann";
        return { mSession.Profile().Surroundings().formats, titles, { activity } };
    }
};

}

TEST_F(ActivityTableTest, Text_PartsColumnsByTabsWhateverATextHolds)
{
    EXPECT_EQ(Table().Text(), "10/10/2006\t9:05 AM – 10:15 AM\t1 h 10\tGar den\tWord\t=a, b\n");
}

TEST_F(ActivityTableTest, Csv_KeepsWhatASpreadsheetWouldRun)
{
    EXPECT_EQ(Table().Csv(),
        "start,end,duration,project,application,description,people\r\n"
        "2006-10-10T09:05:00,2006-10-10T10:15:00,70,Gar\tden,Word,\"'=a,\nb\",Ann\r\n");
}

TEST_F(ActivityTableTest, HiddenTitles_StayAtHome)
{
    EXPECT_EQ(Table(Titles::Hidden).Text(), "10/10/2006\t9:05 AM – 10:15 AM\t1 h 10\tGar den\tWord\t\n");
    EXPECT_EQ(Table(Titles::Hidden).Csv().find("Ann"), std::string::npos);
    EXPECT_EQ(Table(Titles::Hidden).Csv().find("=a"), std::string::npos);
}

}
