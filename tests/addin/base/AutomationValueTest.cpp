#include "addin/base/AutomationValue.h"

#include "addin/base/AutomationDate.h"
#include "addin/base/SystemText.h"
#include "base/Failure.h"

#include <gtest/gtest.h>

#include <functional>

namespace tempodial {

namespace {

AutomationValue Made(const std::function<void(VARIANT& variant)>& make)
{
    AutomationValue value;
    make(*value.Put());
    return value;
}

std::int32_t NumberOfFailure(const std::function<void()>& work)
{
    try {
        work();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

}

TEST(AutomationValueTest, EngineValues_ComeBackAsTheyWere)
{
    const auto moment = Date::FromParts({ 2006, 10, 10, 9, 5, 0 });
    for (const auto& value :
        { Variant(), Variant("Łódź"), Variant(""), Variant(-7), Variant(true), Variant(false), Variant(moment) }) {
        EXPECT_EQ(AutomationValue(value).ToVariant(), value);
    }
}

TEST(AutomationValueTest, Types_PassedToTheHost_AreThoseItWants)
{
    EXPECT_EQ(AutomationValue(std::int32_t { 1 }).Get().vt, VT_I4);
    EXPECT_EQ(AutomationValue("1").Get().vt, VT_BSTR);
    EXPECT_EQ(AutomationValue(Date()).Get().vt, VT_DATE);
    EXPECT_EQ(AutomationValue(true).Get().vt, VT_BOOL);
    EXPECT_EQ(AutomationValue(true).Get().boolVal, VARIANT_TRUE);
    EXPECT_EQ(AutomationValue(Variant()).Get().vt, VT_EMPTY);
    EXPECT_EQ(AutomationValue(ComRef<IDispatch>()).Get().vt, VT_DISPATCH);
    EXPECT_TRUE(AutomationValue::Missing().IsMissing());
    EXPECT_TRUE(AutomationValue(std::optional<std::int32_t>()).IsMissing());
    EXPECT_EQ(AutomationValue(std::optional<std::int32_t>(4)).Get().lVal, 4);
}

TEST(AutomationValueTest, Texts_AsAList_AreAnArrayOfValues)
{
    const AutomationValue value(std::vector<std::string> { "a", "ü" });
    ASSERT_EQ(value.Get().vt, VT_ARRAY | VT_VARIANT);
    LONG last = -1;
    ASSERT_EQ(SafeArrayGetUBound(value.Get().parray, 1, &last), S_OK);
    EXPECT_EQ(last, 1);
    AutomationValue element;
    LONG index = 1;
    ASSERT_EQ(SafeArrayGetElement(value.Get().parray, &index, element.Put()), S_OK);
    EXPECT_EQ(element.ToText(), "ü");
    EXPECT_EQ(AutomationValue(std::vector<std::string>()).Get().vt, VT_ARRAY | VT_VARIANT);
}

TEST(AutomationValueTest, ToVariant_OtherTypes_AreReadAsTheEngineCan)
{
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_NULL; }).ToVariant(), Variant());
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_I2, v.iVal = -3; }).ToVariant(), Variant(-3));
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_UI1, v.bVal = 200; }).ToVariant(), Variant(200));
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_UI4, v.ulVal = 7; }).ToVariant(), Variant(7));
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_R8, v.dblVal = 2; }).ToVariant(), Variant("2"));
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_R8, v.dblVal = 2; }).ToVariant().ToInt32(), 2);
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_CY, v.cyVal.int64 = 15000; }).ToVariant(), Variant("1.5"));
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_DATE, v.date = 949998; }).ToVariant(), Variant());
    EXPECT_EQ(Made([](auto& v) { v.vt = VT_BSTR, v.bstrVal = nullptr; }).ToVariant(), Variant(""));
}

TEST(AutomationValueTest, ToVariant_WhatCantBeRead_Fails)
{
    EXPECT_EQ(NumberOfFailure([] { Made([](auto& v) { v.vt = VT_UI4, v.ulVal = 0xFFFFFFFFUL; }).ToVariant(); }), 6);
    EXPECT_EQ(NumberOfFailure([] { AutomationValue(std::vector<std::string> { "a" }).ToVariant(); }), 13);
    EXPECT_EQ(NumberOfFailure([] { AutomationValue(ComRef<IDispatch>()).ToVariant(); }), 91);
}

TEST(AutomationValueTest, ToText_Moment_IsThatOfTheLocale)
{
    const auto text = AutomationValue(Date::FromParts({ 2006, 10, 10, 9, 5, 0 })).ToText();
    EXPECT_NE(text.find("2006"), std::string::npos) << text;
    EXPECT_EQ(AutomationValue(Variant()).ToText(), "");
    EXPECT_EQ(AutomationValue(std::int32_t { 12 }).ToText(), "12");
}

TEST(AutomationValueTest, ToObject_NoObject_IsNothingOrFails)
{
    EXPECT_FALSE(AutomationValue().ToObject());
    EXPECT_FALSE(AutomationValue(ComRef<IDispatch>()).ToObject());
    EXPECT_EQ(NumberOfFailure([] { AutomationValue("a").ToObject(); }), 424);
    EXPECT_EQ(NumberOfFailure([] { Made([](auto& v) { v.vt = VT_NULL; }).ToObject(); }), 424);
}

TEST(AutomationValueTest, Move_LeavesNothingBehind)
{
    AutomationValue from("a text");
    const AutomationValue to(std::move(from));
    EXPECT_EQ(to.ToText(), "a text");
    EXPECT_EQ(from.Get().vt, VT_EMPTY); // NOLINT(bugprone-use-after-move)
}

TEST(SystemTextTest, Texts_OfAnyScript_ComeBack)
{
    for (const std::string text : { "", "plain", "Łódź", "日本", "😀" }) {
        EXPECT_EQ(Narrow(Wide(text)), text);
        auto* bstr = NewBstr(text);
        EXPECT_EQ(FromBstr(bstr), text);
        SysFreeString(bstr);
    }
    EXPECT_EQ(FromBstr(nullptr), "");
    EXPECT_EQ(Narrow(Wide("a\xFF")), "a\uFFFD");
    EXPECT_EQ(Narrow(L"a\xD800"), "a\uFFFD");
    EXPECT_EQ(Wide(std::string("a\0b", 3)).size(), 3U);
}

}
