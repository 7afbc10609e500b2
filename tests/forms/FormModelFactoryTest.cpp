#include "forms/FormModelFactory.h"

#include <gtest/gtest.h>

namespace tempodial {
namespace {

class FormModelFactoryTest : public testing::Test
{
protected:
    Ref<Form> Create(const std::string& className) { return mFactory.Create({ className, "", {} }); }

    FormModelFactory mFactory;
};

TEST_F(FormModelFactoryTest, Forms_OnlyThoseAlive_InTheirOrder)
{
    const auto first = Create("A");
    auto second = Create("B");
    const auto third = Create("A");
    ASSERT_EQ(mFactory.Forms().size(), 3U);
    second = nullptr;
    const auto forms = mFactory.Forms();
    ASSERT_EQ(forms.size(), 2U);
    EXPECT_EQ(Ref<Form>(forms[0]), first);
    EXPECT_EQ(Ref<Form>(forms[1]), third);
}

TEST_F(FormModelFactoryTest, Create_Form_IsNotShown)
{
    EXPECT_FALSE(Create("A")->Visible());
}

TEST_F(FormModelFactoryTest, Create_Forms_GetNumbersNeverUsedBefore)
{
    Create("A");
    auto second = Create("B");
    EXPECT_EQ(second.As<FormModel>()->Number(), 2);
    second = nullptr;
    EXPECT_EQ(Create("B").As<FormModel>()->Number(), 3);
}

TEST_F(FormModelFactoryTest, Created_IsToldOfAFormThatIsNotYetShown)
{
    std::weak_ptr<FormModel> known;
    const auto watching = mFactory.SubscribeToForms({ [&](FormModel& form) {
        EXPECT_EQ(form.Number(), 1);
        EXPECT_FALSE(form.Visible());
        known = form.weak_from_this();
    } });
    auto form = Create("A");
    EXPECT_EQ(Ref<Form>(Ref<FormModel>(known.lock())), form);
    int ended = 0;
    const auto ending = known.lock()->SubscribeToChanges({ .Ended = [&] { ++ended; } });
    form = nullptr;
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(known.expired());
}

TEST_F(FormModelFactoryTest, CloseAll_VisibleForms_AreUnloadedWhoeverRefuses)
{
    const auto hidden = Create("A");
    const auto refusing = Create("A");
    const auto other = Create("B");
    refusing->Show();
    other->Show();
    int asked = 0;
    const auto unasked = hidden->Subscribe({ .QueryClose = [&](bool&) { ++asked; } });
    const auto refusal = refusing->Subscribe({ .QueryClose = [&](bool& cancel) {
        ++asked;
        cancel = true;
    } });
    mFactory.CloseAll();
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(refusing->Visible());
    EXPECT_FALSE(other->Visible());
}

TEST_F(FormModelFactoryTest, NewestVisible_ClassName_SkipsHiddenAndOtherForms)
{
    const auto first = Create("A");
    const auto second = Create("A");
    const auto third = Create("A");
    const auto other = Create("B");
    EXPECT_FALSE(mFactory.NewestVisible("A"));
    second->Show();
    first->Show();
    other->Show();
    EXPECT_EQ(Ref<Form>(mFactory.NewestVisible("A")), second);
    EXPECT_EQ(Ref<Form>(mFactory.NewestVisible("B")), other);
    second->Hide();
    EXPECT_EQ(Ref<Form>(mFactory.NewestVisible("A")), first);
    EXPECT_FALSE(mFactory.NewestVisible("C"));
}

}
}
