#include "base/Watched.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {
namespace {

struct DoorEvents
{
    std::function<void()> Shut;
};

class Door
{
public:
    using Events = DoorEvents;

    explicit Door(int number)
        : mNumber(number)
    {
    }

    Subscription Subscribe(DoorEvents events)
    {
        if (mRefuses) {
            throw Failure(Error::ServerUnavailable);
        }
        return mEvents.Subscribe(std::move(events));
    }
    void Shut() const { mEvents.Raise(&DoorEvents::Shut); }

    int mNumber;
    bool mRefuses = false;

private:
    EventSource<DoorEvents> mEvents;
};

class WatchedTest : public testing::Test
{
protected:
    DoorEvents Noting(const std::string& word)
    {
        return { .Shut = [this, word] { mSeen += word; } };
    }

    Watched<Door> mDoor;
    Ref<Door> mFirst = MakeRef<Door>(1);
    Ref<Door> mSecond = MakeRef<Door>(2);
    std::string mSeen;
};

TEST_F(WatchedTest, Unset_AnyMember_Fails)
{
    EXPECT_FALSE(mDoor);
    EXPECT_EQ(FailureNumber([&] { mDoor->Shut(); }), 91);
}

TEST_F(WatchedTest, Set_Object_HearsItsEvents)
{
    mDoor.Set(mFirst, Noting("a"));
    EXPECT_TRUE(mDoor);
    EXPECT_EQ(mDoor.Get(), mFirst);
    EXPECT_EQ(mDoor->mNumber, 1);
    mFirst->Shut();
    EXPECT_EQ(mSeen, "a");
}

TEST_F(WatchedTest, Set_AnotherObject_EndsTheFormerSubscription)
{
    mDoor.Set(mFirst, Noting("a"));
    mDoor.Set(mSecond, Noting("b"));
    mFirst->Shut();
    mSecond->Shut();
    EXPECT_EQ(mSeen, "b");
}

TEST_F(WatchedTest, Set_Nothing_FailsAndChangesNothing)
{
    mDoor.Set(mFirst, Noting("a"));
    EXPECT_EQ(FailureNumber([&] { mDoor.Set(nullptr, Noting("b")); }), 91);
    mFirst->Shut();
    EXPECT_EQ(mSeen, "a");
    EXPECT_EQ(mDoor.Get(), mFirst);
}

TEST_F(WatchedTest, Set_SubscriptionRefused_ChangesNothing)
{
    mDoor.Set(mFirst, Noting("a"));
    mSecond->mRefuses = true;
    EXPECT_EQ(FailureNumber([&] { mDoor.Set(mSecond, Noting("b")); }), 462);
    mFirst->Shut();
    EXPECT_EQ(mSeen, "a");
    EXPECT_EQ(mDoor.Get(), mFirst);
}

TEST_F(WatchedTest, Clear_Object_IsLetGoAndHeardNoMore)
{
    mDoor.Set(mFirst, Noting("a"));
    mDoor.Clear();
    EXPECT_FALSE(mDoor);
    EXPECT_EQ(mFirst.Shared().use_count(), 1);
    mFirst->Shut();
    EXPECT_EQ(mSeen, "");
}

TEST_F(WatchedTest, Clear_InsideOfItsOwnEvent_LetsTheEventFinish)
{
    mDoor.Set(mFirst, { .Shut = [this] {
        mDoor.Clear();
        mSeen += "cleared";
    } });
    mFirst->Shut();
    mFirst->Shut();
    EXPECT_EQ(mSeen, "cleared");
}

TEST_F(WatchedTest, Set_InsideOfItsOwnEvent_TakesTheOtherObject)
{
    mDoor.Set(mFirst, { .Shut = [this] {
        mDoor.Set(mSecond, Noting("b"));
        mSeen += "a";
    } });
    mFirst->Shut();
    mFirst->Shut();
    mSecond->Shut();
    EXPECT_EQ(mSeen, "ab");
}

TEST_F(WatchedTest, Destroyed_WhileTheObjectLives_EndsTheSubscription)
{
    {
        Watched<Door> door;
        door.Set(mFirst, Noting("a"));
    }
    mFirst->Shut();
    EXPECT_EQ(mSeen, "");
}

}
}
