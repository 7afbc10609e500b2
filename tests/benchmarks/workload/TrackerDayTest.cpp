#include "workload/TrackerDay.h"

#include "base/Number.h"
#include "base/Ref.h"
#include "host/system/ExpatXml.h"

#include <map>

namespace tempodial {

namespace {

class TrackerDayTest : public testing::Test
{
protected:
    /// The text of an element of the line that was read last, empty when it has none.
    std::string Text(const std::string& name)
    {
        const auto node = mSlot->SelectSingleNode("slot/" + name);
        return node ? node->Text() : "";
    }
    void Read(TrackerDay& day)
    {
        const auto& line = day.NextLine();
        EXPECT_EQ(line.size(), TrackerDay::LineSize);
        EXPECT_TRUE(mSlot->LoadXML(line)) << line;
    }

    Ref<XmlDocument> mSlot = ExpatXmlFactory().NewDocument();
};

TEST_F(TrackerDayTest, NextLine_ThousandLines_HaveTheMix)
{
    TrackerDay day(1);
    std::map<TrackerDay::Kind, int> kinds;
    for (int line = 0; line < 1000; ++line) {
        Read(day);
        ++kinds[day.LastKind()];
        EXPECT_EQ(Text("Continuation"), day.LastKind() == TrackerDay::Kind::Continuation ? "1" : "");
        EXPECT_EQ(Text("Detail"), day.LastKind() == TrackerDay::Kind::Detail ? "1" : "");
        if (line % 10 == 0) {
            EXPECT_EQ(day.LastKind(), TrackerDay::Kind::New);
        } else if (line % 10 == 9) {
            EXPECT_NE(day.LastKind(), TrackerDay::Kind::Detail);
        }
    }
    EXPECT_EQ(kinds[TrackerDay::Kind::New], 600);
    EXPECT_EQ(kinds[TrackerDay::Kind::Continuation], 300);
    EXPECT_EQ(kinds[TrackerDay::Kind::Detail], 100);
}

TEST_F(TrackerDayTest, NextLine_TimesOfLines_FollowOneAnother)
{
    TrackerDay day(2);
    std::int32_t last = 3600;
    for (int line = 0; line < 500; ++line) {
        Read(day);
        const auto start = ToInt32(Text("StartTime"));
        const auto end = ToInt32(Text("EndTime"));
        switch (day.LastKind()) {
        case TrackerDay::Kind::New:
            EXPECT_EQ(start, last);
            EXPECT_GT(end, last);
            break;
        case TrackerDay::Kind::Continuation:
            EXPECT_EQ(start, last);
            EXPECT_EQ(end, last + 300);
            break;
        case TrackerDay::Kind::Detail:
            EXPECT_EQ(end, last);
            break;
        }
        last = end;
    }
    EXPECT_LT(last, 86400) << "the lines of a usual day fit into it";
}

TEST_F(TrackerDayTest, NextLine_SameSeed_GivesTheSameLines)
{
    TrackerDay one(3);
    TrackerDay same(3);
    TrackerDay other(4);
    bool differs = false;
    for (int line = 0; line < 50; ++line) {
        const auto text = one.NextLine();
        EXPECT_EQ(text, same.NextLine());
        differs = differs || text != other.NextLine();
    }
    EXPECT_TRUE(differs);
}

}

}
