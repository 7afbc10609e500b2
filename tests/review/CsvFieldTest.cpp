#include "review/CsvField.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(CsvFieldTest, Texts_WithSigns_AreQuotedAndNoFormulas)
{
    EXPECT_EQ(CsvField("plain text"), "plain text");
    EXPECT_EQ(CsvField(""), "");
    EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvField("say \"x\""), "\"say \"\"x\"\"\"");
    EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
    for (const auto* text : { "=1+1", "+1", "-1", "@a", "\tb" }) {
        EXPECT_EQ(CsvField(text), std::string("'") + text);
    }
    EXPECT_EQ(CsvField("\r=1"), "\"'\r=1\"");
    EXPECT_EQ(CsvField("a=1"), "a=1");
}

}
