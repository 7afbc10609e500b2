#include "host/system/Letters.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(LettersTest, Characters_OfAnyScript_AreLettersOrDigitsOrNot)
{
    for (const char32_t character : U"aZ09ßéЖ売٣") {
        EXPECT_EQ(IsLetterOrDigit(character), character != U'\0') << static_cast<unsigned>(character);
    }
    for (const char32_t character : U" _-.\"\t\u00A0–€×\u200F😀") {
        EXPECT_FALSE(IsLetterOrDigit(character)) << static_cast<unsigned>(character);
    }
}

}
