#include "addin/com/KeptProperties.h"

#include "addin/com/Adapted.h"
#include "addin/com/FakeObject.h"

#include <gmock/gmock.h>

#include <cstddef>

namespace tempodial {

class KeptPropertiesTest : public testing::Test
{
protected:
    KeptPropertiesTest()
    {
        mProperty->Has("Value", AutomationValue("Plan"));
        mProperties->Has("Find", [this](const DISPPARAMS&, VARIANT* result, EXCEPINFO*) {
            *result = AutomationValue(mIsThere ? mProperty->Automation() : ComRef<IDispatch>()).Detach();
            return S_OK;
        });
        mProperties->Has("Add", AutomationValue(mProperty->Automation()));
        mItem->Has("UserProperties", AutomationValue(mProperties->Automation()));
        mItem->Has("Close", AutomationValue());
    }
    ~KeptPropertiesTest() override
    {
        KeptProperties::AreWanted() = true;
        for (auto* object : { &mItem, &mProperties, &mProperty }) {
            object->Clear();
        }
        EXPECT_EQ(FakeObject::Count(), 0);
    }

    /// Reads the project of an item twice, and says how many calls that took.
    std::size_t CallsOfReadingTwice(const Ref<AppointmentItem>& item)
    {
        const auto before = Calls();
        for (int time = 0; time < 2; ++time) {
            EXPECT_EQ(item->UserProperties()->Item("Project")->Value().ToText(), "Plan");
        }
        return Calls() - before;
    }
    std::size_t Calls() const { return mItem->calls.size() + mProperties->calls.size() + mProperty->calls.size(); }

    ComRef<FakeObject> mItem = FakeObject::Make();
    ComRef<FakeObject> mProperties = FakeObject::Make();
    ComRef<FakeObject> mProperty = FakeObject::Make();
    bool mIsThere = true;
};

TEST_F(KeptPropertiesTest, Kept_AreAskedForOnce_AndReadEachTime)
{
    EXPECT_EQ(CallsOfReadingTwice(Adapted<AppointmentItem>(mItem->Automation())), 4);
    EXPECT_EQ(mProperty->calls.size(), 2);
}

TEST_F(KeptPropertiesTest, NotWanted_AreAskedForEachTime)
{
    KeptProperties::AreWanted() = false;
    EXPECT_EQ(CallsOfReadingTwice(Adapted<AppointmentItem>(mItem->Automation())), 6);
}

TEST_F(KeptPropertiesTest, Close_KeepsThem_AndAnotherHolderAsksAnew)
{
    const auto item = Adapted<AppointmentItem>(mItem->Automation());
    CallsOfReadingTwice(item);
    item->Close(CloseMode::Save);
    EXPECT_EQ(CallsOfReadingTwice(item), 2);
    EXPECT_EQ(CallsOfReadingTwice(Adapted<AppointmentItem>(mItem->Automation())), 4);
}

TEST_F(KeptPropertiesTest, Added_IsKeptToo_AndAnAbsentOneIsNot)
{
    const auto item = Adapted<AppointmentItem>(mItem->Automation());
    mIsThere = false;
    EXPECT_FALSE(item->UserProperties()->Item("Project"));
    EXPECT_FALSE(item->UserProperties()->Item("Project"));
    EXPECT_EQ(mProperties->calls.size(), 4);
    item->UserProperties()->Add("Project", PropertyType::Text, true);
    EXPECT_TRUE(item->UserProperties()->Item("Project"));
    EXPECT_EQ(mProperties->calls.size(), 5);
}

}
