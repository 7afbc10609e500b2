#include "wire/forms/FormRequest.h"

#include "wire/forms/AskedForms.h"
#include "wire/forms/FormWire.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <variant>

namespace tempodial {
namespace {

std::string KeyWords(const FormKey& key)
{
    const auto* name = std::get_if<std::string>(&key);
    return name == nullptr ? std::to_string(std::get<std::int32_t>(key)) : "\"" + *name + "\"";
}

/// Hands that note what they are asked to do.
class NotingHands final : public FormHands
{
public:
    std::vector<FormSnapshot> Forms() override { return forms; }
    void Type(const FormKey& form, const std::string& control, const std::string& text) override
    {
        done = "type " + KeyWords(form) + " " + control + " " + text;
    }
    void Choose(const FormKey& form, const std::string& control, const EntryKey& entry) override
    {
        done = "choose " + KeyWords(form) + " " + control + " " + KeyWords(entry);
    }
    void Check(const FormKey& form, const std::string& control, bool checked) override
    {
        done = "check " + KeyWords(form) + " " + control + (checked ? " on" : " off");
    }
    void Click(const FormKey& form, const std::string& control) override
    {
        done = "click " + KeyWords(form) + " " + control;
    }
    bool Close(const FormKey& form) override
    {
        done = "close " + KeyWords(form);
        return closes;
    }

    std::vector<FormSnapshot> forms;
    bool closes = true;
    std::string done;
};

TEST(FormWireTest, Forms_ThereAndBack_AreTheSame)
{
    const std::vector<FormSnapshot> forms {
        { .number = 3,
            .className = "SampleForm",
            .title = "Sample",
            .visible = true,
            .controls = { { .name = "Month",
                              .kind = ControlKind::ComboBox,
                              .text = "Oct",
                              .list = { "Sep", "Oct" },
                              .index = 1,
                              .enabled = false,
                              .tip = "a month" },
                { .name = "Tick", .kind = ControlKind::CheckBox, .text = "&Tick", .checked = true, .visible = false },
                { .name = "Bar", .kind = ControlKind::ProgressBar, .min = -1, .max = 300, .value = 120 } } },
        { .number = 4, .className = "EmptyForm" }
    };
    EXPECT_EQ(FormsFromWire(ToWire(forms)), forms);
}

TEST(FormWireTest, FormsFromWire_AnotherValue_Fails)
{
    EXPECT_THROW(FormsFromWire(WireValue::List({ WireValue::Number(1) })), std::out_of_range);
}

TEST(FormRequestTest, IsFormRequest_Words)
{
    EXPECT_TRUE(IsFormRequest("forms"));
    EXPECT_TRUE(IsFormRequest("form.close"));
    EXPECT_FALSE(IsFormRequest("form"));
    EXPECT_FALSE(IsFormRequest("connect"));
}

TEST(FormRequestTest, DoFormRequest_EachWord_IsDoneByTheHands)
{
    NotingHands hands;
    const auto done = [&hands](const std::string& word, const std::vector<WireValue>& arguments) {
        DoFormRequest(hands, word, arguments);
        return hands.done;
    };
    const auto name = WireValue::Text("Box");
    EXPECT_EQ(done("form.type", { ToWire(FormKey(7)), name, WireValue::Text("plan") }), "type 7 Box plan");
    EXPECT_EQ(done("form.choose", { ToWire(FormKey("SampleForm")), name, ToWire(EntryKey(2)) }),
        "choose \"SampleForm\" Box 2");
    EXPECT_EQ(done("form.choose", { ToWire(FormKey(7)), name, ToWire(EntryKey("Oct")) }), "choose 7 Box \"Oct\"");
    EXPECT_EQ(done("form.check", { ToWire(FormKey(7)), name, WireValue::Flag(true) }), "check 7 Box on");
    EXPECT_EQ(done("form.check", { ToWire(FormKey(7)), name, WireValue::Flag(false) }), "check 7 Box off");
    EXPECT_EQ(done("form.click", { ToWire(FormKey(7)), name }), "click 7 Box");
    EXPECT_EQ(DoFormRequest(hands, "form.close", { ToWire(FormKey(7)) }), WireValue::Flag(true));
    EXPECT_EQ(hands.done, "close 7");
    hands.forms = { { .number = 1, .className = "SampleForm" } };
    EXPECT_EQ(FormsFromWire(DoFormRequest(hands, "forms", {})), hands.forms);
}

TEST(FormRequestTest, AskedForms_AreWorkedByTheHandsOfTheOtherEnd)
{
    NotingHands hands;
    AskedForms asked([&hands](const std::string& word, const std::vector<WireValue>& arguments) {
        EXPECT_TRUE(IsFormRequest(word));
        return DoFormRequest(hands, word, arguments);
    });
    asked.Type(7, "Box", "plan");
    EXPECT_EQ(hands.done, "type 7 Box plan");
    asked.Choose("SampleForm", "Box", 2);
    EXPECT_EQ(hands.done, "choose \"SampleForm\" Box 2");
    asked.Choose(7, "Box", "Oct");
    EXPECT_EQ(hands.done, "choose 7 Box \"Oct\"");
    asked.Check(7, "Box", true);
    EXPECT_EQ(hands.done, "check 7 Box on");
    asked.Check(7, "Box", false);
    EXPECT_EQ(hands.done, "check 7 Box off");
    asked.Click(7, "Box");
    EXPECT_EQ(hands.done, "click 7 Box");
    EXPECT_TRUE(asked.Close(7));
    EXPECT_EQ(hands.done, "close 7");
    hands.closes = false;
    EXPECT_FALSE(asked.Close("SampleForm"));
    hands.forms = { { .number = 1, .className = "SampleForm" } };
    EXPECT_EQ(asked.Forms(), hands.forms);
}

}
}
