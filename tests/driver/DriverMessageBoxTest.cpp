#include "driver/DriverMessageBox.h"

#include "driver/RequestError.h"
#include "support/TestMailbox.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tempodial {

namespace {

const std::vector<Answer> YesNo { Answer::Yes, Answer::No };

}

class DriverMessageBoxTest : public testing::Test
{
protected:
    Answer Ask(const std::vector<Answer>& buttons) { return mBox.Show("Why?", buttons, MessageIcon::Question); }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    DriverMessageBox mBox { mMailbox };
};

TEST_F(DriverMessageBoxTest, Show_NothingPrepared_GetsTheFirstButton)
{
    EXPECT_EQ(Ask({ Answer::No, Answer::Yes }), Answer::No);
    EXPECT_EQ(Ask({ Answer::Ok }), Answer::Ok);
}

TEST_F(DriverMessageBoxTest, Show_Prepared_GetsTheAnswersInOrder)
{
    mBox.Prepare({ "no", "cancel", "yes", "ok" });
    EXPECT_EQ(Ask(YesNo), Answer::No);
    EXPECT_EQ(Ask({ Answer::Yes, Answer::No, Answer::Cancel }), Answer::Cancel);
    EXPECT_EQ(Ask(YesNo), Answer::Yes);
    EXPECT_EQ(Ask({ Answer::Ok }), Answer::Ok);
    EXPECT_EQ(Ask({ Answer::No, Answer::Yes }), Answer::No);
}

TEST_F(DriverMessageBoxTest, Show_AnswerWithoutButton_GetsTheFirstButtonAndIsUsedUp)
{
    mBox.Prepare({ "cancel", "no" });
    EXPECT_EQ(Ask(YesNo), Answer::Yes);
    EXPECT_EQ(Ask(YesNo), Answer::No);
}

TEST_F(DriverMessageBoxTest, Prepare_Again_TakesThePlaceOfWhatIsLeft)
{
    mBox.Prepare({ "no", "no" });
    mBox.Prepare({ "yes" });
    EXPECT_EQ(Ask({ Answer::No, Answer::Yes }), Answer::Yes);
    EXPECT_EQ(Ask({ Answer::Yes, Answer::No }), Answer::Yes);
}

TEST_F(DriverMessageBoxTest, Prepare_UnknownWord_FailsAndChangesNothing)
{
    mBox.Prepare({ "no" });
    EXPECT_THROW(mBox.Prepare({ "yes", "maybe" }), RequestError);
    EXPECT_EQ(Ask(YesNo), Answer::No);
}

TEST_F(DriverMessageBoxTest, Take_Shown_GivesEachBoxOnce)
{
    mBox.Prepare({ "no" });
    mBox.Show("One?", YesNo, MessageIcon::Question);
    EXPECT_EQ(mBox.Count(), 1);
    mBox.Show("Two!", { Answer::Ok }, MessageIcon::Exclamation);
    mBox.Show("Three", { Answer::Ok, Answer::Cancel }, MessageIcon::None);
    const auto all = Json::parse(R"([
        {"text":"One?","buttons":["yes","no"],"icon":"question","answer":"no"},
        {"text":"Two!","buttons":["ok"],"icon":"exclamation","answer":"ok"},
        {"text":"Three","buttons":["ok","cancel"],"icon":"none","answer":"ok"}])");
    EXPECT_EQ(mBox.ShownFrom(0), all);
    EXPECT_EQ(mBox.ShownFrom(2), Json::array({ all[2] }));
    EXPECT_EQ(mBox.Take(), all);
    EXPECT_EQ(mBox.Take(), Json::array());
}

}
