#include "desktop/qt/GuardedApplication.h"

#include "desktop/qt/OffscreenApplication.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <stdexcept>
#include <vector>

namespace tempodial {

class GuardedApplicationTest : public testing::Test
{
protected:
    GuardedApplicationTest()
    {
        mApplication.mFailed = [this](const std::exception& failure) { mTold.emplace_back(failure.what()); };
    }
    ~GuardedApplicationTest() override { mApplication.mFailed = nullptr; }

    /// A person clicks a button that fails so.
    template <class Thrown> void ClickAndThrow(const Thrown& thrown)
    {
        QPushButton button;
        QObject::connect(&button, &QPushButton::clicked, &button, [thrown] { throw thrown; });
        button.show();
        QTest::mouseClick(&button, Qt::LeftButton);
    }

    GuardedApplication& mApplication = OffscreenApplication();
    std::vector<std::string> mTold;
};

TEST_F(GuardedApplicationTest, Slot_Fails_IsToldAndTheProgramGoesOn)
{
    EXPECT_NO_THROW(ClickAndThrow(std::runtime_error("the disk is full")));
    EXPECT_EQ(mTold, std::vector<std::string> { "the disk is full" });
}

TEST_F(GuardedApplicationTest, Slot_FailsWithoutWords_IsTold)
{
    EXPECT_NO_THROW(ClickAndThrow(42));
    EXPECT_EQ(mTold, std::vector<std::string> { "Something failed that has no words for it: try once more." });
}

TEST_F(GuardedApplicationTest, TheOneThatIsTold_Fails_NothingLeaves)
{
    mApplication.mFailed = [](const std::exception&) { throw std::runtime_error("again"); };
    EXPECT_NO_THROW(ClickAndThrow(std::runtime_error("first")));
    mApplication.mFailed = nullptr;
    EXPECT_NO_THROW(ClickAndThrow(std::runtime_error("nobody is told")));
}

}
