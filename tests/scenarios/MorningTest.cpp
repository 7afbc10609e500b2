#include "scenarios/Scripts.h"
#include "support/SlotLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The values of a member of all items.
std::vector<std::string> Values(const Json& items, const std::string& property)
{
    std::vector<std::string> values;
    for (const auto& item : items) {
        values.push_back(item.at("properties").at(property));
    }
    return values;
}

}

class MorningTest : public testing::Test
{
protected:
    DrivenPerson mPerson;
};

TEST_F(MorningTest, Morning_Project_ReachesThePastAndTheReport)
{
    Morning(mPerson);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
    EXPECT_THAT(mPerson.Messages(), IsEmpty());
    EXPECT_EQ(mPerson.Items().size(), 24);
    EXPECT_EQ(mPerson.ItemsOf("budget").size(), 12);
    EXPECT_THAT(Values(mPerson.ItemsOf("budget"), "Project"), Each("Plan"));
    EXPECT_THAT(Values(mPerson.ItemsOf("letter"), "Project"), Each("No Project"));
    for (const auto& item : mPerson.Items()) {
        EXPECT_EQ(item.at("properties").at("ApplyPast"), false);
        EXPECT_THAT(item.at("properties").at("Keyword").get<std::string>(), HasSubstr("<word or phrase"));
    }
    const auto mails = mPerson.Do({ { "do", "mails" } }).at("mails");
    ASSERT_EQ(mails.size(), 1);
    EXPECT_EQ(mails[0].at("subject"), "Tempodial Report (By Project) Tuesday, October 10, 2006");
    EXPECT_EQ(mails[0].at("displayed"), true);
    EXPECT_THAT(mails[0].at("html").get<std::string>(), HasSubstr("Plan"));
    const auto csv = mails[0].at("attachments").at(0).at("text").get<std::string>();
    EXPECT_THAT(csv, HasSubstr("\"Plan\",\"Microsoft Word\""));
    EXPECT_THAT(csv, HasSubstr("\"No Project\",\"Microsoft Word\""));
    // The day that is reported is today, and the last window took the add-in with it.
    EXPECT_THAT(csv, Not(HasSubstr("October 9")));
    EXPECT_EQ(mPerson.Do({ { "do", "forms" } }).at("forms"), Json::array());
    EXPECT_THAT(mPerson.Trace(), Contains(HasSubstr("last explorer gone")));
}

TEST_F(MorningTest, NextMorning_Rule_FindsItsActivitiesByItself)
{
    Morning(mPerson);
    mPerson.Do({ { "do", "stop" } });
    mPerson.Do({ { "do", "clock" }, { "now", "2006-10-11T09:00:00" } });
    mPerson.WriteDay("20061011", { WordSlot(28800, 29100, "budget for all") });
    mPerson.Start();
    mPerson.Refresh(1);
    const auto items = mPerson.ItemsOf("budget for all");
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].at("properties").at("Project"), "Plan");
    EXPECT_EQ(mPerson.Items().size(), 25);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(MorningTest, Arrival_Twice_ImportsNothingAgain)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.GoTo(1, DrivenPerson::Log);
    mPerson.GoTo(1, "Inbox");
    mPerson.Do({ { "do", "clock" }, { "advance", 3600 } });
    mPerson.GoTo(1, DrivenPerson::Log);
    EXPECT_EQ(mPerson.Items().size(), 24);
}

TEST_F(MorningTest, Arrival_RightAfterTheStart_WaitsWithTheImport)
{
    mPerson.WriteTracker();
    mPerson.Do({ { "do", "start" } });
    mPerson.GoTo(1, DrivenPerson::Log);
    EXPECT_EQ(mPerson.Items().size(), 0);
    mPerson.Refresh(1);
    EXPECT_EQ(mPerson.Items().size(), 24);
}

}
