#include "base/Ref.h"

#include <gtest/gtest.h>

#include <functional>

namespace tempodial {
namespace {

struct Animal
{
    virtual ~Animal() = default;
    int legs = 4;
};
struct Bird : Animal
{
    Bird() { legs = 2; }
};
struct Fish : Animal
{
};

void ExpectNotSet(const std::function<void()>& call)
{
    try {
        call();
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 91);
    }
}

TEST(RefTest, Nothing_AnyMember_Fails)
{
    const Ref<Animal> nothing;
    EXPECT_FALSE(nothing);
    EXPECT_EQ(nothing.Get(), nullptr);
    EXPECT_EQ(nothing, Ref<Animal>(nullptr));
    ExpectNotSet([&] { nothing->legs = 3; });
    ExpectNotSet([&] { (*nothing).legs = 3; });
}

TEST(RefTest, Object_Copied_IsShared)
{
    const auto bird = MakeRef<Bird>();
    const Ref<Animal> animal = bird;
    EXPECT_TRUE(animal);
    EXPECT_EQ(animal->legs, 2);
    EXPECT_EQ(animal.Get(), bird.Get());
    EXPECT_EQ(bird.Shared().use_count(), 2);
}

TEST(RefTest, Object_Moved_LeavesNothing)
{
    auto bird = MakeRef<Bird>();
    const Ref<Animal> animal = std::move(bird);
    EXPECT_EQ(animal.Shared().use_count(), 1);
    EXPECT_FALSE(bird); // NOLINT(bugprone-use-after-move): a moved reference is nothing
}

TEST(RefTest, As_OtherClass_IsNothing)
{
    const Ref<Animal> animal = MakeRef<Bird>();
    EXPECT_EQ(animal.As<Bird>().Get(), animal.Get());
    EXPECT_FALSE(animal.As<Fish>());
    EXPECT_FALSE(Ref<Animal>().As<Bird>());
}

TEST(RefTest, Equality_AsksForTheSameObject)
{
    const auto one = MakeRef<Animal>();
    const auto other = MakeRef<Animal>();
    const auto copy = one;
    EXPECT_EQ(one, copy);
    EXPECT_NE(one, other);
    EXPECT_NE(one, Ref<Animal>());
}

}
}
