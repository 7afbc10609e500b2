#include "addin/com/EventSink.h"

#include "addin/com/Adapted.h"
#include "addin/com/FakeObject.h"
#include "base/Failure.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace tempodial {

namespace {

using testing::ElementsAre;

constexpr IID EventInterface(unsigned long first)
{
    return { first, 0, 0, { 0xC0, 0, 0, 0, 0, 0, 0, 0x46 } };
}

VARIANT Flag(VARIANT_BOOL& flag)
{
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_BYREF | VT_BOOL;
    value.pboolVal = &flag;
    return value;
}

VARIANT Object(const ComRef<FakeObject>& object)
{
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_DISPATCH;
    value.pdispVal = object->Automation().Get();
    return value;
}

}

class EventSinkTest : public testing::Test
{
protected:
    ~EventSinkTest() override
    {
        mSource.Clear();
        EXPECT_EQ(FakeObject::Count(), 0);
        EXPECT_EQ(EventSink::Count(), 0);
    }

    ComRef<FakeObject> mSource = FakeObject::Make();
};

TEST_F(EventSinkTest, Subscribe_ByTheNewestInterface_HearsUntilItEnds)
{
    mSource->Raises(EventInterface(0x0006302C));
    int quits = 0;
    auto subscription = Adapted<Application>(mSource->Automation())->Subscribe({ .Quit = [&] { ++quits; } });
    EXPECT_TRUE(mSource->IsHeard());
    mSource->Raise(0xF007);
    mSource->Raise(0xFA90);
    mSource->Raise(0x1234);
    EXPECT_EQ(quits, 1);
    subscription.End();
    EXPECT_FALSE(mSource->IsHeard());
    mSource->Raise(0xF007);
    EXPECT_EQ(quits, 1);
}

TEST_F(EventSinkTest, Subscribe_ToAnOlderHost_TakesTheOlderInterface)
{
    mSource->Raises(EventInterface(0x0006304F));
    const auto subscription = Adapted<Explorer>(mSource->Automation())->Subscribe({});
    EXPECT_TRUE(mSource->IsHeard());
    EXPECT_EQ(mSource->sought.size(), 2U);
    EXPECT_TRUE(mSource->sought.front() == EventInterface(0x0006300F));
}

TEST_F(EventSinkTest, Subscribe_ToWhatRaisesNothing_Fails)
{
    const auto items = Adapted<Items>(mSource->Automation());
    EXPECT_THROW(items->Subscribe({}), Failure);
    mSource->Raises(EventInterface(0x1));
    EXPECT_THROW(items->Subscribe({}), Failure);
    EXPECT_EQ(EventSink::Count(), 0);
}

TEST_F(EventSinkTest, Event_ThatEndsItsOwnSubscription_IsDealtWith)
{
    mSource->Raises(EventInterface(0x0006302A));
    Subscription subscription;
    int closes = 0;
    subscription = Adapted<Inspector>(mSource->Automation())->Subscribe({ .Close = [&] {
        subscription.End();
        ++closes;
    } });
    mSource->Raise(0xF008);
    EXPECT_EQ(closes, 1);
    EXPECT_FALSE(mSource->IsHeard());
    EXPECT_EQ(EventSink::Count(), 0);
}

TEST_F(EventSinkTest, Event_WhoseHandlerFails_EndsThere)
{
    mSource->Raises(EventInterface(0x0006302C));
    const auto subscription = Adapted<Application>(mSource->Automation())->Subscribe({ .MapiLogonComplete = [] {
        throw std::runtime_error("a");
    } });
    EXPECT_NO_THROW(mSource->Raise(0xFA90));
}

TEST_F(EventSinkTest, Cancel_ByEitherKindOfReference_IsAskedAndTold)
{
    mSource->Raises(EventInterface(0x0006302B));
    bool answer = true;
    bool asked = false;
    const auto subscription = Adapted<AppointmentItem>(mSource->Automation())->Subscribe({ .Write = [&](bool& cancel) {
        asked = cancel;
        cancel = answer;
    } });
    VARIANT_BOOL flag = VARIANT_FALSE;
    mSource->Raise(0xF002, { Flag(flag) });
    EXPECT_EQ(flag, VARIANT_TRUE);
    EXPECT_FALSE(asked);

    answer = false;
    mSource->Raise(0xF002, { Flag(flag) });
    EXPECT_TRUE(asked);
    EXPECT_EQ(flag, VARIANT_FALSE);

    answer = true;
    VARIANT inner;
    VariantInit(&inner);
    VARIANT outer;
    VariantInit(&outer);
    outer.vt = VT_BYREF | VT_VARIANT;
    outer.pvarVal = &inner;
    mSource->Raise(0xF002, { outer });
    EXPECT_EQ(inner.vt, VT_BOOL);
    EXPECT_EQ(inner.boolVal, VARIANT_TRUE);
    EXPECT_NO_THROW(mSource->Raise(0xF002));
}

TEST_F(EventSinkTest, Click_HasItsButtonAndItsFlag)
{
    mSource->Raises(EventInterface(0x000C0351));
    mSource->Has("Tag", AutomationValue("refresh"));
    std::string clicked;
    const auto subscription = Adapted<CommandBarButton>(mSource->Automation())
                                  ->Subscribe({ .Click = [&](const Ref<CommandBarButton>& button, bool& cancel) {
                                      clicked = button->Tag();
                                      cancel = true;
                                  } });
    VARIANT_BOOL flag = VARIANT_FALSE;
    mSource->Raise(1, { Object(mSource), Flag(flag) });
    EXPECT_EQ(clicked, "refresh");
    EXPECT_EQ(flag, VARIANT_TRUE);
}

TEST_F(EventSinkTest, NewExplorer_HandsOverTheWindow)
{
    mSource->Raises(EventInterface(0x00063078));
    const auto window = FakeObject::Make();
    window->Has("Caption", AutomationValue("Inbox"));
    std::string caption;
    const auto subscription
        = Adapted<Explorers>(mSource->Automation())->Subscribe({ .NewExplorer = [&](const Ref<Explorer>& explorer) {
              caption = explorer->Caption();
          } });
    mSource->Raise(0xF001, { Object(window) });
    EXPECT_EQ(caption, "Inbox");
}

TEST_F(EventSinkTest, Count_WhileAnExplorerCloses_LeavesItOut)
{
    const auto closing = FakeObject::Make();
    closing->Raises(EventInterface(0x0006300F));
    mSource->Has("Count", AutomationValue(std::int32_t { 1 }));
    mSource->Has("Item", AutomationValue(closing->Automation()));
    const auto explorers = Adapted<Explorers>(mSource->Automation());
    std::vector<std::int32_t> counts { explorers->Count() };
    auto subscription = Adapted<Explorer>(closing->Automation())->Subscribe({ .Close = [&] {
        counts.push_back(explorers->Count());
    } });
    closing->Raise(0xF008);
    counts.push_back(explorers->Count());
    EXPECT_THAT(counts, ElementsAre(1, 0, 1));
    subscription.End();
}

}
