#include "wire/Conversation.h"

#include "wire/WireFailure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace tempodial {

namespace {

using testing::ElementsAre;

/// A channel whose other end is a test: what is to be read is prepared, what was written is kept.
class PreparedChannel final : public ByteChannel
{
public:
    std::string input;
    std::string output;
    int writes = 0;
    /// How many bytes come at once.
    std::size_t most = 65536;

    std::size_t Read(char* buffer, std::size_t size) override
    {
        const auto count = std::min({ size, most, input.size() });
        std::copy_n(input.begin(), count, buffer);
        input.erase(0, count);
        return count;
    }
    void Write(std::string_view bytes) override
    {
        ++writes;
        output += bytes;
    }
};

std::string Result(const WireValue& value)
{
    FrameWriter writer(FrameType::Result);
    return writer.Value(value).Frame();
}

std::string Failed(std::int64_t number, const std::string& text)
{
    FrameWriter writer(FrameType::Failed);
    return writer.Number(number).Text(text).Frame();
}

std::string Asked(FrameType type, const std::string& word)
{
    FrameWriter writer(type);
    return writer.Text(word).Frame();
}

}

class ConversationTest : public testing::Test
{
protected:
    WireValue Ask()
    {
        FrameWriter request(FrameType::Do);
        return mEnd.Ask(request.Text("work"));
    }

    PreparedChannel mChannel;
    std::vector<std::string> mServed;
    Conversation mEnd { mChannel, [this](FrameType, FrameReader& body) {
                           mServed.push_back(body.Text());
                           if (mServed.back() == "refuse") {
                               throw WireFailure(13, "Type mismatch");
                           }
                           return mServed.back() == "nest" ? Ask() : WireValue::Text("done " + mServed.back());
                       } };
};

TEST_F(ConversationTest, Ask_Answered_GivesTheAnswer)
{
    mChannel.input = Result(WireValue::Number(4));
    EXPECT_EQ(Ask(), WireValue::Number(4));
    EXPECT_EQ(mChannel.output, Asked(FrameType::Do, "work"));
}

TEST_F(ConversationTest, Ask_Refused_FailsWithNumberAndText)
{
    mChannel.input = Failed(438, "no such member");
    try {
        Ask();
        FAIL();
    } catch (const WireFailure& failure) {
        EXPECT_EQ(failure.Number(), 438);
        EXPECT_STREQ(failure.what(), "no such member");
    }
}

TEST_F(ConversationTest, Ask_ThatIsAskedMeanwhile_ServesFirst)
{
    mChannel.input = Asked(FrameType::Call, "a") + Asked(FrameType::Call, "nest") + Asked(FrameType::Call, "b")
        + Result(WireValue::Flag(true)) + Asked(FrameType::Free, "c") + Asked(FrameType::Call, "refuse")
        + Result(WireValue::Number(9));
    EXPECT_EQ(Ask(), WireValue::Number(9));
    EXPECT_THAT(mServed, ElementsAre("a", "nest", "b", "c", "refuse"));
    EXPECT_EQ(mChannel.output,
        Asked(FrameType::Do, "work") + Result(WireValue::Text("done a")) + Asked(FrameType::Do, "work")
            + Result(WireValue::Text("done b")) + Result(WireValue::Flag(true)) + Failed(13, "Type mismatch"));
}

TEST_F(ConversationTest, Tell_IsSentWithWhatIsSentNext)
{
    FrameWriter told(FrameType::Free);
    mEnd.Tell(told.Text("first"));
    EXPECT_EQ(mChannel.output, "");
    mChannel.input = Result(WireValue::Number(4));
    Ask();
    EXPECT_EQ(mChannel.writes, 1);
    EXPECT_EQ(mChannel.output, Asked(FrameType::Free, "first") + Asked(FrameType::Do, "work"));
    FrameWriter toldLater(FrameType::Free);
    mEnd.Tell(toldLater.Text("second"));
    mChannel.input = Asked(FrameType::Call, "a");
    mEnd.ServeNext();
    EXPECT_EQ(mChannel.writes, 2);
    EXPECT_EQ(mChannel.output,
        Asked(FrameType::Free, "first") + Asked(FrameType::Do, "work") + Asked(FrameType::Free, "second")
            + Result(WireValue::Text("done a")));
}

TEST_F(ConversationTest, ServeNext_FramesInPieces_ServesEachUntilTheEnd)
{
    mChannel.most = 3;
    mChannel.input = Asked(FrameType::Call, "a") + Asked(FrameType::Call, "b");
    EXPECT_TRUE(mEnd.ServeNext());
    EXPECT_TRUE(mEnd.ServeNext());
    EXPECT_FALSE(mEnd.ServeNext());
    EXPECT_THAT(mServed, ElementsAre("a", "b"));
}

TEST_F(ConversationTest, End_WhereNoneMayBe_IsBroken)
{
    EXPECT_THROW(Ask(), WireBroken);
    mChannel.input = Asked(FrameType::Call, "a").substr(0, 7);
    EXPECT_THROW(mEnd.ServeNext(), WireBroken);
    mChannel.input = std::string(4, '\0');
    EXPECT_THROW(mEnd.ServeNext(), WireBroken) << "no frame is empty";
    mChannel.input = "\xff\xff\xff\xff";
    EXPECT_THROW(mEnd.ServeNext(), WireBroken) << "no frame is so long";
}

}
