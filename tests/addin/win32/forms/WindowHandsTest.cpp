#include "standin/WindowHands.h"

#include "addin/win32/forms/SampleForm.h"
#include "forms/FormDifferences.h"
#include "forms/FormRefusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class WindowHandsTest : public SampleForm
{
};

TEST_F(WindowHandsTest, FormThatIsNotSeen_IsRefused)
{
    EXPECT_THROW(mHands.Click("SampleForm", "OK"), FormRefusal);
    EXPECT_THROW(mHands.Close(1), FormRefusal);
    mForm->Show();
    EXPECT_THROW(mHands.Click("OtherForm", "OK"), FormRefusal);
    EXPECT_THROW(mHands.Click(2, "OK"), FormRefusal);
    EXPECT_THAT(mEvents, IsEmpty());
}

TEST_F(WindowHandsTest, ControlThatCannotBeWorked_IsRefused)
{
    As<Button>("OK")->SetEnabled(false);
    As<CheckBox>("Tick")->SetVisible(false);
    mForm->Show();
    EXPECT_THROW(mHands.Click("SampleForm", "OK"), FormRefusal);
    EXPECT_THROW(mHands.Check("SampleForm", "Tick", true), FormRefusal);
    EXPECT_THROW(mHands.Click("SampleForm", "Outside"), FormRefusal);
    EXPECT_THROW(mHands.Click("SampleForm", "absent"), FormRefusal);
    EXPECT_THROW(mHands.Click("SampleForm", "Subject"), FormRefusal);
    EXPECT_THROW(mHands.Type("SampleForm", "SubjectLabel", "x"), FormRefusal);
    EXPECT_THROW(mHands.Choose("SampleForm", "Project", 0), FormRefusal);
    EXPECT_THROW(mHands.Choose("SampleForm", "Project", "Plan"), FormRefusal);
    EXPECT_THROW(mHands.Check("SampleForm", "One", false), FormRefusal);
    EXPECT_THAT(mEvents, IsEmpty());
}

TEST_F(WindowHandsTest, SeveralFormsOfAClass_ItsNameMeansTheNewestThatIsSeen)
{
    const auto newer = mFactory->Create(SampleDefinition());
    mForm->Show();
    newer->Show();
    mHands.Type("SampleForm", "Subject", "newer");
    mHands.Type(1, "Subject", "older");
    EXPECT_EQ(newer->Control("Subject").As<TextBox>()->Text(), "newer");
    EXPECT_EQ(As<TextBox>("Subject")->Text(), "older");
    newer->Hide();
    mHands.Type("SampleForm", "Subject", "only");
    EXPECT_EQ(As<TextBox>("Subject")->Text(), "only");
}

TEST_F(WindowHandsTest, Difference_WindowShowsSomethingElse_SaysWhat)
{
    mForm->Show();
    const auto shown = Shown();
    EXPECT_THAT(FormDifferences({ Modelled() }, { shown }), IsEmpty());
    As<ComboBox>("Project")->AddItem("Plan");
    EXPECT_THAT(FormDifferences({ Modelled() }, { shown }), ElementsAre(HasSubstr(R"(list ["Plan"])")));
    mForm->SetCaption("Other");
    EXPECT_THAT(FormDifferences({ Modelled() }, { shown }),
        ElementsAre(HasSubstr(R"("Other" with 13 controls, and its window shows "Sample ")")));
}

TEST_F(WindowHandsTest, Difference_PersonChangedWhatTheModelDidNotHear_IsSeen)
{
    mForm->Show();
    // Without telling the form of it, as no person can.
    SendMessageW(ControlWindow("Tick"), BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_THAT(FormDifferences({ Modelled() }, { Shown() }),
        ElementsAre(HasSubstr("\"Tick\" of kind 4, text \"&Back apply\", list [], index -1, checked")));
}

}
}
