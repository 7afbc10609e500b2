#include "portable/TextEncoding.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(TextEncodingTest, DecodedLine_NotUtf8_IsReadAsWindows1252)
{
    EXPECT_EQ(DecodedLine("h\xe4user \x80"), "häuser €");
    EXPECT_EQ(DecodedLine("\x81\x9f\xff"), "\u0081Ÿÿ");
    EXPECT_EQ(DecodedLine("häuser €"), "häuser €");
    EXPECT_EQ(DecodedLine(""), "");
}

TEST(TextEncodingTest, DecodedLines_EachLine_IsDecodedByItself)
{
    EXPECT_EQ(DecodedLines("ä\r\n\xe4\nä"), "ä\r\nä\nä");
    EXPECT_EQ(DecodedLines("\xe4\n\n"), "ä\n\n");
}

}
