#include "forms/FormRules.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {
namespace {

FormDefinition LabelledForm()
{
    using enum ControlKind;
    return { .className = "SampleForm",
        .title = "Sample",
        .rows = { { { "Heading", Label, "What is it?" }, { "Hint", Label, "&Say it:" } },
            { { "First", ComboBox, "" }, { "Second", ComboBox, "" } },
            { { "Between", Label, "&Between" }, { "From", ComboBox, "" }, { "And", Label, "and" },
                { "To", ComboBox, "" } },
            { { "Alone", TextBox, "" } }, { { "Far", Label, "far", false } }, { { "Near", TextBox, "" } },
            { { .name = "Never", .kind = Button, .text = "OK", .onForm = false, .role = ButtonRole::Default } },
            { { .name = "Save", .kind = Button, .text = "OK", .role = ButtonRole::Default },
                { .name = "Other", .kind = Button, .text = "Cancel" } } } };
}

std::string LabelNameOf(const std::string& control)
{
    const auto form = LabelledForm();
    const auto* label = LabelOf(form, control);
    return label == nullptr ? "" : label->name;
}

TEST(FormRulesTest, LabelOf_LabelInItsRow_IsTheNearestInFront)
{
    EXPECT_EQ(LabelNameOf("From"), "Between");
    EXPECT_EQ(LabelNameOf("To"), "And");
}

TEST(FormRulesTest, LabelOf_NoLabelInItsRow_IsTheLastOfARowOfLabelsAbove)
{
    EXPECT_EQ(LabelNameOf("First"), "Hint");
    EXPECT_EQ(LabelNameOf("Second"), "Hint");
    EXPECT_EQ(LabelNameOf("Alone"), "");
}

TEST(FormRulesTest, LabelOf_NoLabelThatIsSeen_IsNone)
{
    EXPECT_EQ(LabelNameOf("Near"), "");
    EXPECT_EQ(LabelNameOf("Heading"), "");
    EXPECT_EQ(LabelNameOf("absent"), "");
}

TEST(FormRulesTest, ButtonFor_Role_IsTheOneOnTheForm)
{
    const auto form = LabelledForm();
    ASSERT_NE(ButtonFor(form, ButtonRole::Default), nullptr);
    EXPECT_EQ(ButtonFor(form, ButtonRole::Default)->name, "Save");
    EXPECT_EQ(ButtonFor(form, ButtonRole::Cancel), nullptr);
}

TEST(FormRulesTest, WithoutKey_Marks_AreTakenAwayAndDoubledOnesRead)
{
    EXPECT_EQ(WithoutKey("&From:"), "From:");
    EXPECT_EQ(WithoutKey("R&&D e&xpenses"), "R&D expenses");
    EXPECT_EQ(WithoutKey("plain"), "plain");
    EXPECT_EQ(WithoutKey(""), "");
}

}
}
