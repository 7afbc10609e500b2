#include "base/Failure.h"
#include "forms/ButtonModel.h"
#include "forms/CheckBoxModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/FormModel.h"
#include "forms/OptionButtonModel.h"
#include "forms/TextBoxModel.h"
#include "support/FailureNumber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A control that nobody but the form holds.
template <class Model> Model& Bare(const Ref<FormModel>& form, const std::string& name)
{
    return *form->Control(name).As<Model>();
}

FormDefinition Sample()
{
    using enum ControlKind;
    return { .className = "SampleForm",
        .title = "Sample",
        .rows = {
            { { .name = "Name", .kind = TextBox, .text = "a name", .toolTip = "who" },
                { .name = "Month", .kind = ComboBox, .text = "Jan" } },
            { { "Tick", CheckBox, "&tick" } },
            { { "A", OptionButton, "by &a" }, { "B", OptionButton, "by &b" } },
            { { "C", OptionButton, "by &c" } },
            { { "OK", Button, "OK" } },
        } };
}

/// A form on the screen, with the events of its controls noted as "control event".
class ControlEventsTest : public testing::Test
{
protected:
    ControlEventsTest()
    {
        for (const auto* entry : { "Jan", "Feb", "Mar" }) {
            mMonth->AddItem(entry);
        }
        mForm->Show();
        Note(mName->Subscribe({ .Change = [this] { mHeard.emplace_back("Name change"); } }));
        Note(mMonth->Subscribe({ .Change = [this] { mHeard.emplace_back("Month change"); },
            .Click = [this] { mHeard.emplace_back("Month click"); } }));
        Note(mTick->Subscribe({ .Click = [this] { mHeard.emplace_back("Tick click"); } }));
        for (const auto* name : { "A", "B", "C" }) {
            Note(Get<OptionButtonModel>(name)->Subscribe(
                { .Click = [this, name] { mHeard.push_back(name + std::string(" click")); } }));
        }
    }

    template <class Model> Ref<Model> Get(const std::string& name) const { return mForm->Control(name).As<Model>(); }
    void Note(Subscription subscription) { mSubscriptions.push_back(std::move(subscription)); }
    /// The events since the last call.
    std::vector<std::string> Heard() { return std::exchange(mHeard, {}); }

    Ref<FormModel> mForm = MakeRef<FormModel>(Sample(), 1);
    Ref<TextBoxModel> mName = Get<TextBoxModel>("Name");
    Ref<ComboBoxModel> mMonth = Get<ComboBoxModel>("Month");
    Ref<CheckBoxModel> mTick = Get<CheckBoxModel>("Tick");
    Ref<OptionButtonModel> mA = Get<OptionButtonModel>("A");
    Ref<OptionButtonModel> mB = Get<OptionButtonModel>("B");
    Ref<OptionButtonModel> mC = Get<OptionButtonModel>("C");
    std::vector<std::string> mHeard;
    std::vector<Subscription> mSubscriptions;
};

TEST_F(ControlEventsTest, Made_EachKind_HasItsDefinition)
{
    EXPECT_EQ(mName->Definition().toolTip, "who");
    EXPECT_EQ(mTick->Definition().toolTip, "");
    EXPECT_EQ(mTick->Caption(), "&tick");
    EXPECT_FALSE(mTick->Value());
    EXPECT_EQ(mA->Caption(), "by &a");
    EXPECT_FALSE(mA->Value());
    mTick->SetCaption("t");
    mA->SetCaption("a");
    EXPECT_EQ(mTick->Caption(), "t");
    EXPECT_EQ(mA->Caption(), "a");
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ControlEventsTest, TextOfTextBox_ByCodeOrTyped_RaisesChangeWhenItChanges)
{
    mName->SetText("other");
    EXPECT_THAT(Heard(), ElementsAre("Name change"));
    mName->SetText("other");
    EXPECT_THAT(Heard(), IsEmpty());
    mName->Type("typed");
    EXPECT_THAT(Heard(), ElementsAre("Name change"));
    mName->Type("typed");
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ControlEventsTest, TextOfCombo_ByCodeOrTyped_RaisesChangeAndNoClick)
{
    mMonth->SetText("Apr");
    EXPECT_THAT(Heard(), ElementsAre("Month change"));
    mMonth->SetText("Apr");
    EXPECT_THAT(Heard(), IsEmpty());
    mMonth->Type("Feb");
    EXPECT_THAT(Heard(), ElementsAre("Month change"));
    EXPECT_EQ(mMonth->ListIndex(), -1) << "an entry's text is no choice";
}

TEST_F(ControlEventsTest, ChoiceOfCombo_ByAPerson_RaisesClickAndNoChange)
{
    mMonth->Choose(1);
    EXPECT_THAT(Heard(), ElementsAre("Month click"));
    EXPECT_EQ(mMonth->Text(), "Feb");
    mMonth->Choose(1);
    EXPECT_THAT(Heard(), ElementsAre("Month click")) << "picked anew";
}

TEST_F(ControlEventsTest, ListIndex_ByCode_RaisesClickWhenItChanges)
{
    mMonth->SetListIndex(2);
    EXPECT_THAT(Heard(), ElementsAre("Month click"));
    EXPECT_EQ(mMonth->Text(), "Mar");
    mMonth->SetListIndex(2);
    EXPECT_THAT(Heard(), IsEmpty());
    mMonth->SetListIndex(-1);
    EXPECT_THAT(Heard(), ElementsAre("Month click"));
    EXPECT_EQ(mMonth->Text(), "");
    EXPECT_EQ(FailureNumber([&] { mMonth->SetListIndex(3); }), 380);
    EXPECT_EQ(FailureNumber([&] { mMonth->SetListIndex(-2); }), 380);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ControlEventsTest, TextAfterAChoice_OfTheSameEntry_ClearsTheSelectionWithoutAnEvent)
{
    mMonth->Choose(0);
    Heard();
    mMonth->SetText("Jan");
    EXPECT_EQ(mMonth->ListIndex(), -1);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ControlEventsTest, ClearOfCombo_TakesEntriesAndText)
{
    mMonth->Choose(0);
    Heard();
    mMonth->Clear();
    EXPECT_THAT(mMonth->List(), IsEmpty());
    EXPECT_EQ(mMonth->Text(), "");
    EXPECT_EQ(mMonth->ListIndex(), -1);
    EXPECT_THAT(Heard(), ElementsAre("Month change"));
    mMonth->Clear();
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ControlEventsTest, ValueOfCheckBox_ByCodeOrPerson_RaisesClickWhenItChanges)
{
    mTick->SetValue(false);
    EXPECT_THAT(Heard(), IsEmpty());
    mTick->SetValue(true);
    EXPECT_THAT(Heard(), ElementsAre("Tick click"));
    mTick->Check(true);
    EXPECT_THAT(Heard(), IsEmpty());
    mTick->Check(false);
    EXPECT_THAT(Heard(), ElementsAre("Tick click"));
    EXPECT_FALSE(mTick->Value());
}

TEST_F(ControlEventsTest, ValueOfOption_RaisesClickOnlyWhenItBecomesTheOneChosen)
{
    mA->SetValue(true);
    EXPECT_THAT(Heard(), ElementsAre("A click"));
    mA->SetValue(true);
    EXPECT_THAT(Heard(), IsEmpty());
    mC->Choose();
    EXPECT_THAT(Heard(), ElementsAre("C click")) << "A gives up in silence";
    EXPECT_FALSE(mA->Value());
    EXPECT_FALSE(mB->Value());
    EXPECT_TRUE(mC->Value());
    mC->Choose();
    EXPECT_THAT(Heard(), IsEmpty()) << "a person can't give it up";
    EXPECT_TRUE(mC->Value());
    mA->SetValue(false);
    EXPECT_TRUE(mC->Value()) << "no matter of C's";
    mC->SetValue(false);
    EXPECT_FALSE(mC->Value());
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(ControlEventsTest, OptionsOfTwoForms_DoNotExcludeEachOther)
{
    const auto other = MakeRef<FormModel>(Sample(), 2);
    other->Control("A").As<OptionButton>()->SetValue(true);
    mB->SetValue(true);
    EXPECT_TRUE(other->Control("A").As<OptionButton>()->Value());
}

TEST_F(ControlEventsTest, ControlThatCanNotBeWorked_FailsAndChangesNothing)
{
    const std::pair<Ref<Control>, std::function<void()>> actions[] = {
        { mName, [&] { mName->Type("x"); } },
        { mMonth, [&] { mMonth->Type("x"); } },
        { mMonth, [&] { mMonth->Choose(0); } },
        { mTick, [&] { mTick->Check(true); } },
        { mA, [&] { mA->Choose(); } },
    };
    for (const auto& [control, action] : actions) {
        control->SetEnabled(false);
        EXPECT_EQ(FailureNumber(action), 5) << "disabled";
        control->SetEnabled(true);
        control->SetVisible(false);
        EXPECT_EQ(FailureNumber(action), 5) << "hidden";
        control->SetVisible(true);
        mForm->Hide();
        EXPECT_EQ(FailureNumber(action), 5) << "form hidden";
        mForm->Show();
    }
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_EQ(mName->Text(), "a name");
    EXPECT_EQ(mMonth->Text(), "Jan");
    EXPECT_FALSE(mTick->Value());
    EXPECT_FALSE(mA->Value());
}

TEST_F(ControlEventsTest, SetByCode_ControlThatCanNotBeWorked_RaisesAllTheSame)
{
    mForm->Hide();
    mTick->SetEnabled(false);
    mTick->SetValue(true);
    mName->SetText("x");
    EXPECT_THAT(Heard(), ElementsAre("Tick click", "Name change"));
}

TEST_F(ControlEventsTest, Unload_PutsEverythingBackWithoutAnEvent)
{
    mName->Type("x");
    mMonth->Choose(1);
    mTick->Check(true);
    mB->Choose();
    Heard();
    mForm->Unload();
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_EQ(mName->Text(), "a name");
    EXPECT_EQ(mMonth->Text(), "Jan");
    EXPECT_THAT(mMonth->List(), IsEmpty());
    EXPECT_FALSE(mTick->Value());
    EXPECT_FALSE(mB->Value());
}

TEST_F(ControlEventsTest, Hide_KeepsTicksAndChoices)
{
    mTick->Check(true);
    mB->Choose();
    mForm->Hide();
    mForm->Show();
    EXPECT_TRUE(mTick->Value());
    EXPECT_TRUE(mB->Value());
}

TEST_F(ControlEventsTest, ChangeOfAnyKind_IsToldToWhoeverDrawsTheForm)
{
    int changes = 0;
    const auto subscription = mForm->SubscribeToChanges({ .Changed = [&] { ++changes; } });
    const std::function<void()> steps[] = {
        [&] { mName->Type("x"); },
        [&] { mMonth->Choose(1); },
        [&] { mMonth->SetListIndex(0); },
        [&] { mMonth->Clear(); },
        [&] { mTick->Check(true); },
        [&] { mTick->SetCaption("x"); },
        [&] { mA->Choose(); },
        [&] { mA->SetCaption("x"); },
        [&] { mA->SetValue(false); },
    };
    for (const auto& step : steps) {
        const auto before = changes;
        step();
        EXPECT_EQ(changes, before + 1);
    }
}

TEST_F(ControlEventsTest, ListenerSetsTheTextBack_EndsAtThatText)
{
    const auto subscription = mName->Subscribe({ .Change = [this] { mName->SetText("a name"); } });
    mName->Type("other");
    EXPECT_EQ(mName->Text(), "a name");
    EXPECT_THAT(Heard(), ElementsAre("Name change", "Name change"));
}

TEST_F(ControlEventsTest, ListenerDropsTheForm_OfEachKind_Finishes)
{
    const std::function<Subscription(const Ref<FormModel>&, const std::function<void()>&)> listeners[] = {
        [](const auto& form, const auto& drop) {
            return form->Control("Name").template As<TextBox>()->Subscribe({ .Change = drop });
        },
        [](const auto& form, const auto& drop) {
            return form->Control("Month").template As<ComboBox>()->Subscribe({ .Change = drop, .Click = drop });
        },
        [](const auto& form, const auto& drop) {
            return form->Control("Tick").template As<CheckBox>()->Subscribe({ .Click = drop });
        },
        [](const auto& form, const auto& drop) {
            return form->Control("A").template As<OptionButton>()->Subscribe({ .Click = drop });
        },
        [](const auto& form, const auto& drop) {
            return form->Control("OK").template As<Button>()->Subscribe({ .Click = drop });
        },
    };
    const std::function<void(const Ref<FormModel>&)> actions[] = {
        [](const Ref<FormModel>& form) { Bare<TextBoxModel>(form, "Name").Type("x"); },
        [](const Ref<FormModel>& form) { Bare<ComboBoxModel>(form, "Month").Type("x"); },
        [](const Ref<FormModel>& form) { Bare<CheckBoxModel>(form, "Tick").Check(true); },
        [](const Ref<FormModel>& form) { Bare<OptionButtonModel>(form, "A").Choose(); },
        [](const Ref<FormModel>& form) { Bare<ButtonModel>(form, "OK").Click(); },
    };
    for (std::size_t kind = 0; kind < std::size(listeners); ++kind) {
        auto form = MakeRef<FormModel>(Sample(), 2);
        form->Show();
        bool dropped = false;
        const auto subscription = listeners[kind](form, [&] {
            form = nullptr;
            dropped = true;
        });
        actions[kind](form);
        EXPECT_TRUE(dropped) << kind;
    }
}

}
}
