#include "cli/PrintingMessageBox.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tempodial {

TEST(PrintingMessageBoxTest, Show_Message_IsPrintedInOneLineAndAnsweredByItsDefault)
{
    std::ostringstream stream;
    PrintingMessageBox box(stream);
    EXPECT_EQ(box.Show("Save\r\nit\x1b?", { Answer::Yes, Answer::No }, MessageIcon::Question), Answer::Yes);
    EXPECT_EQ(box.Show("Told", {}, MessageIcon::None), Answer::Ok);
    EXPECT_EQ(stream.str(), "tempodial: Save it\u241B?\ntempodial: Told\n");
}

}
