#include "terminal/JsonListText.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(JsonListTextTest, Take_AnyEntries_IsTheTextOfTheArray)
{
    JsonListText list;
    auto array = JsonValue::Array();
    EXPECT_EQ(list.Take(), array.Text());
    for (const auto& entry : { JsonValue { { "a", 1 }, { "b", JsonValue { { "c", "x\ny" } } } }, JsonValue("text"),
             JsonValue::Object(), JsonValue() }) {
        array.Append(entry);
    }
    for (const auto& entry : { JsonValue { { "a", 1 }, { "b", JsonValue { { "c", "x\ny" } } } }, JsonValue("text"),
             JsonValue::Object(), JsonValue() }) {
        list.Append(entry);
    }
    EXPECT_EQ(list.Take(), array.Text());
    EXPECT_EQ(list.Take(), "[]") << "what was taken is gone";
}

}
