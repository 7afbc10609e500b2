#include "base/Subscription.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace tempodial {
namespace {

struct Events
{
    std::function<void(bool& cancel)> Open;
    std::function<void()> Close;
};

class SubscriptionTest : public testing::Test
{
protected:
    Events Noting(const std::string& word)
    {
        return { .Open = nullptr, .Close = [this, word] { mSeen += word; } };
    }

    EventSource<Events> mSource;
    std::string mSeen;
};

TEST_F(SubscriptionTest, Raise_Listeners_AreCalledInTheirOrder)
{
    const auto first = mSource.Subscribe(Noting("a"));
    const auto second = mSource.Subscribe(Noting("b"));
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "ab");
}

TEST_F(SubscriptionTest, Raise_EmptyCallback_IsPassedOver)
{
    const auto subscription = mSource.Subscribe(Noting("a"));
    bool cancel = false;
    mSource.Raise(&Events::Open, cancel);
    EXPECT_EQ(mSeen, "");
}

TEST_F(SubscriptionTest, Raise_Argument_CarriesTheAnswerBack)
{
    const auto subscription = mSource.Subscribe({ .Open = [](bool& cancel) { cancel = true; }, .Close = nullptr });
    bool cancel = false;
    mSource.Raise(&Events::Open, cancel);
    EXPECT_TRUE(cancel);
}

TEST_F(SubscriptionTest, End_Listener_HearsNoMore)
{
    auto subscription = mSource.Subscribe(Noting("a"));
    EXPECT_TRUE(subscription);
    subscription.End();
    subscription.End();
    EXPECT_FALSE(subscription);
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "");
}

TEST_F(SubscriptionTest, Destroyed_Listener_HearsNoMore)
{
    {
        const auto subscription = mSource.Subscribe(Noting("a"));
    }
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "");
}

TEST_F(SubscriptionTest, Raise_ListenerEndsItself_FinishesAndHearsNoMore)
{
    Subscription subscription;
    const auto word = std::make_shared<std::string>("a");
    subscription = mSource.Subscribe({ .Open = nullptr, .Close = [this, &subscription, word] {
                                          subscription.End();
                                          mSeen += *word; // what the callback holds lives until it is left
                                      } });
    const auto later = mSource.Subscribe(Noting("b"));
    mSource.Raise(&Events::Close);
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "abb");
}

TEST_F(SubscriptionTest, Raise_ListenerEndsAnother_OtherIsNotCalled)
{
    Subscription other;
    const auto first = mSource.Subscribe({ .Open = nullptr, .Close = [&] {
                                              mSeen += "a";
                                              other.End();
                                          } });
    other = mSource.Subscribe(Noting("b"));
    const auto third = mSource.Subscribe(Noting("c"));
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "ac");
}

TEST_F(SubscriptionTest, Raise_ListenerSubscribesAnother_OtherWaitsForTheNextEvent)
{
    Subscription other;
    const auto first = mSource.Subscribe({ .Open = nullptr, .Close = [&] {
                                              mSeen += "a";
                                              other = mSource.Subscribe(Noting("b"));
                                          } });
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "a");
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "aa") << "the former subscription of the second listener ended when it was replaced";
}

TEST_F(SubscriptionTest, Raise_InsideOfAnEvent_IsNested)
{
    int depth = 0;
    const auto subscription = mSource.Subscribe({ .Open = nullptr, .Close = [&] {
                                                     mSeen += "(";
                                                     if (++depth < 3) {
                                                         mSource.Raise(&Events::Close);
                                                     }
                                                     mSeen += ")";
                                                 } });
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "((()))");
}

TEST_F(SubscriptionTest, Raise_SourceDestroyedByAListener_CallsTheOthers)
{
    auto source = std::make_unique<EventSource<Events>>();
    const auto first = source->Subscribe({ .Open = nullptr, .Close = [&] { source.reset(); } });
    const auto second = source->Subscribe(Noting("b"));
    source->Raise(&Events::Close);
    EXPECT_EQ(mSeen, "b");
    EXPECT_FALSE(source);
}

struct Owner : std::enable_shared_from_this<Owner>
{
    explicit Owner(std::string& seen)
        : mSeen(seen)
    {
    }
    ~Owner() { mSeen += "gone"; }

    void OnClose()
    {
        if (mRelease) {
            mRelease();
        }
        mSeen += mName; // touches this object behind the release
    }
    void OnOpen(bool& cancel) { cancel = mName == "owner "; }

    std::string& mSeen;
    std::string mName = "owner ";
    std::function<void()> mRelease;
    Subscription mSubscription;
};

TEST_F(SubscriptionTest, Handler_OwnerDestroyedInItsOwnEvent_LivesToTheEndOfIt)
{
    auto owner = std::make_shared<Owner>(mSeen);
    owner->mSubscription = mSource.Subscribe({ .Open = nullptr, .Close = Handler(owner, &Owner::OnClose) });
    owner->mRelease = [&owner] { owner.reset(); };
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "owner gone");
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "owner gone");
}

TEST_F(SubscriptionTest, Handler_OwnerIsGone_DoesNothing)
{
    auto owner = std::make_shared<Owner>(mSeen);
    const auto subscription = mSource.Subscribe({ .Open = nullptr, .Close = Handler(owner, &Owner::OnClose) });
    owner.reset();
    mSource.Raise(&Events::Close);
    EXPECT_EQ(mSeen, "gone");
}

TEST_F(SubscriptionTest, Handler_Argument_IsTheCallersOwn)
{
    const auto owner = std::make_shared<Owner>(mSeen);
    const auto subscription = mSource.Subscribe({ .Open = Handler(owner, &Owner::OnOpen), .Close = nullptr });
    bool cancel = false;
    mSource.Raise(&Events::Open, cancel);
    EXPECT_TRUE(cancel);
}

}
}
