#include "host/system/GMimeDraftWriter.h"

#include "base/Text.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace tempodial {

namespace {

constexpr auto Text = "text/plain; charset=utf-8";

std::string Hex(const std::string& bytes)
{
    std::string hex;
    for (const char byte : bytes) {
        std::array<char, 3> digits {};
        std::snprintf(digits.data(), digits.size(), "%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        hex += digits.data();
    }
    return hex;
}

class GMimeDraftWriterTest : public testing::Test
{
protected:
    /// What Python's email package reads in a draft.
    std::vector<std::string> Read(const MailDraft& draft, const std::string& plainText = "")
    {
        static_cast<void>(mFolder.Write("draft.eml", mWriter.Text(draft, plainText)));
        const auto command = "python3 -B " TEMPODIAL_SOURCE_DIR "/tests/host/system/read_mail.py "
            + mFolder.Path("draft.eml") + " 2>&1";
        const std::unique_ptr<FILE, decltype(&::pclose)> output(::popen(command.c_str(), "r"), &::pclose);
        std::string text;
        for (int character = std::fgetc(output.get()); character != EOF; character = std::fgetc(output.get())) {
            text += static_cast<char>(character);
        }
        auto lines = Split(text, "\n");
        lines.pop_back();
        return lines;
    }

    TempFolder mFolder;
    GMimeDraftWriter mWriter;
};

TEST_F(GMimeDraftWriterTest, Text_PlainText_IsOnePart)
{
    EXPECT_THAT(Read({ { "support@tempodial.example" }, "Tempodial Problem Report", "Day: 1\r\nActual: x\r\n" }),
        ElementsAre("headers: X-Unsent, Subject, To, MIME-Version, Content-Type, Content-Transfer-Encoding",
            "subject: Tempodial Problem Report", "to: support@tempodial.example", "unsent: 1",
            "part: text/plain utf-8 None None", Hex("Day: 1\r\nActual: x\r\n"), "bare line ends: 0",
            "longest line: short", "defects: []"));
}

TEST_F(GMimeDraftWriterTest, Text_HtmlWithAttachments_KeepsTheirBytes)
{
    const std::string bytes("\x00\r\xff\n\r\nFrom x", 12);
    const auto lines = Read({ {}, "s", "<p>x</p>", true,
        { { "a.csv", "\"a\",1\r\n", "text/csv; charset=utf-8" }, { "b", bytes, "" }, { "empty.out", "", Text } } });
    EXPECT_THAT(lines,
        ElementsAre("headers: X-Unsent, Subject, MIME-Version, Content-Type", "subject: s", "to: None", "unsent: 1",
            "part: text/html utf-8 None None", Hex("<p>x</p>"), "part: text/csv utf-8 attachment a.csv",
            Hex("\"a\",1\r\n"), "part: application/octet-stream None attachment b", Hex(bytes),
            "part: text/plain utf-8 attachment empty.out", "", "bare line ends: 0", "longest line: short",
            "defects: []"));
}

TEST_F(GMimeDraftWriterTest, Text_PageWithPlainText_HasBothBesideTheAttachments)
{
    const std::string end = "--=_Tempodial_Body_1.2--\r\n--=_Tempodial_1.2\r\n";
    const auto alone = Read({ {}, "s", "<p>x</p>", true }, "x\r\n" + end);
    EXPECT_THAT(alone,
        ElementsAre("headers: X-Unsent, Subject, MIME-Version, Content-Type", "subject: s", "to: None", "unsent: 1",
            "alternatives: text/plain, text/html", "part: text/plain utf-8 None None", Hex("x\r\n" + end),
            "part: text/html utf-8 None None", Hex("<p>x</p>"), "bare line ends: 0", "longest line: short",
            "defects: []"));
    const auto attached = Read({ {}, "s", "<p>x</p>", true, { { "a.csv", "1\r\n", "text/csv" } } }, "x\r\n");
    EXPECT_THAT(attached,
        ElementsAre("headers: X-Unsent, Subject, MIME-Version, Content-Type", "subject: s", "to: None", "unsent: 1",
            "alternatives: text/plain, text/html", "part: text/plain utf-8 None None", Hex("x\r\n"),
            "part: text/html utf-8 None None", Hex("<p>x</p>"), "part: text/csv None attachment a.csv", Hex("1\r\n"),
            "bare line ends: 0", "longest line: short", "defects: []"));
    EXPECT_EQ(Read({ {}, "s", "y", false }, "x"), Read({ {}, "s", "y", false })) << "a plain mail has one text";
}

struct WordsCase
{
    const char* name;
    std::string words;
    std::string read;
};

class GMimeDraftWriterWordsTest : public GMimeDraftWriterTest, public testing::WithParamInterface<WordsCase>
{
};

TEST_P(GMimeDraftWriterWordsTest, Text_WordsInAnyScript_AreReadBack)
{
    const auto lines = Read({ {}, GetParam().words, "", false, { { GetParam().words, "x", Text } } });
    ASSERT_EQ(lines.size(), 11U) << testing::PrintToString(lines);
    EXPECT_EQ(lines[1], "subject: " + GetParam().read);
    EXPECT_EQ(lines[6], "part: text/plain utf-8 attachment " + GetParam().read);
    EXPECT_EQ(lines[8], "bare line ends: 0");
    EXPECT_EQ(lines[10], "defects: []");
}

INSTANTIATE_TEST_SUITE_P(Scripts, GMimeDraftWriterWordsTest,
    testing::Values(WordsCase { "Latin", "plan.csv", "plan.csv" },
        WordsCase { "LongDate", "Tempodial Tuesday, October 10, 2006 - Wednesday, October 11, 2006.csv",
            "Tempodial Tuesday, October 10, 2006 - Wednesday, October 11, 2006.csv" },
        WordsCase { "Umlauts", "Bericht für März.csv", "Bericht für März.csv" },
        WordsCase { "Japanese", "2006年10月10日の作業報告書と計画の一覧を含む長い名前のファイル.csv",
            "2006年10月10日の作業報告書と計画の一覧を含む長い名前のファイル.csv" },
        WordsCase { "Arabic", "تقرير العمل ليوم الثلاثاء.csv", "تقرير العمل ليوم الثلاثاء.csv" },
        WordsCase { "Emoji", "📝🗓️👩‍💻 report 📝🗓️👩‍💻 report 📝🗓️👩‍💻.csv",
            "📝🗓️👩‍💻 report 📝🗓️👩‍💻 report 📝🗓️👩‍💻.csv" },
        WordsCase { "Marks", "a \"b\"; c='d' %41 (e) <f>.csv", "a \"b\"; c='d' %41 (e) <f>.csv" },
        WordsCase { "Long", std::string(250, 'x') + ".csv", std::string(250, 'x') + ".csv" },
        WordsCase { "LineEnd", "a\r\nBcc: x@y.example", "a  Bcc: x@y.example" }),
    [](const testing::TestParamInfo<WordsCase>& tested) { return std::string(tested.param.name); });

struct BodyCase
{
    const char* name;
    std::string body;
    std::string read;
};

class GMimeDraftWriterBodyTest : public GMimeDraftWriterTest, public testing::WithParamInterface<BodyCase>
{
};

TEST_P(GMimeDraftWriterBodyTest, Text_Body_IsReadBackEndedByALineEnd)
{
    for (const bool isHtml : { false, true }) {
        const auto lines = Read({ {}, "s", GetParam().body, isHtml });
        ASSERT_EQ(lines.size(), 9U);
        EXPECT_EQ(lines[5], Hex(GetParam().read));
        EXPECT_THAT(lines[6], "bare line ends: 0");
        EXPECT_THAT(lines[7], "longest line: short");
        EXPECT_THAT(lines[8], "defects: []");
    }
}

INSTANTIATE_TEST_SUITE_P(Bodies, GMimeDraftWriterBodyTest,
    testing::Values(BodyCase { "Empty", "", "" }, BodyCase { "LineEndAlone", "\r\n", "\r\n" },
        BodyCase { "Lines", "a\r\n\r\n b \r\n", "a\r\n\r\n b \r\n" }, BodyCase { "NoLastEnd", "a\r\nb", "a\r\nb\r\n" },
        BodyCase { "LineFeeds", "a\nb\n", "a\r\nb\r\n" }, BodyCase { "LoneReturn", "a\rb\r\n", "a\rb\r\n" },
        BodyCase { "LongLine", std::string(5000, 'x') + "\r\n" + std::string(999, ' ') + "\r\n",
            std::string(5000, 'x') + "\r\n" + std::string(999, ' ') + "\r\n" },
        BodyCase { "Marks", ".\r\n..\r\nFrom me\r\n--=_Tempodial_1.2--\r\n=41=\r\n",
            ".\r\n..\r\nFrom me\r\n--=_Tempodial_1.2--\r\n=41=\r\n" },
        BodyCase { "Scripts", "計画\r\nخطة 📝\r\n", "計画\r\nخطة 📝\r\n" }),
    [](const testing::TestParamInfo<BodyCase>& tested) { return std::string(tested.param.name); });

TEST_F(GMimeDraftWriterTest, Text_LongSubject_IsFolded)
{
    std::string subject = "first";
    for (int word = 0; word < 300; ++word) {
        subject += word % 7 == 0 ? " 計画" : " word";
    }
    const auto lines = Read({ {}, subject, "x" });
    EXPECT_EQ(lines[1], "subject: " + subject);
    EXPECT_EQ(lines[7], "longest line: short");
}

TEST_F(GMimeDraftWriterTest, Text_BoundaryInABody_IsNoBoundary)
{
    const std::string text = "--=_Tempodial_1.2\r\n\r\n--=_Tempodial_1.2--\r\n";
    const auto lines = Read({ {}, "s", text, false, { { "a", text, Text } } });
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[5], Hex(text));
    EXPECT_EQ(lines[7], Hex(text));
}

TEST_F(GMimeDraftWriterTest, Text_SameDraft_GivesTheSameBytes)
{
    const MailDraft draft { { "a@b.example" }, "s", "計画", true, { { "a.csv", "x", "" } } };
    const auto text = mWriter.Text(draft);
    EXPECT_EQ(GMimeDraftWriter().Text(draft), text);
    EXPECT_THAT(text, Not(HasSubstr("Date:")));
    EXPECT_THAT(text, Not(HasSubstr("Message-I")));
}

TEST_F(GMimeDraftWriterTest, Text_LargeDraft_IsComplete)
{
    std::string body;
    for (int line = 0; line < 200000; ++line) {
        body += "line " + std::to_string(line) + " = x\r\n";
    }
    const auto written = mWriter.Text({ {}, "s", body });
    EXPECT_THAT(written, testing::EndsWith("line 199999 =3D x\r\n"));
    EXPECT_EQ(Split(written, "\r\n").size(), 200000U + 7);
}

TEST_F(GMimeDraftWriterTest, Text_NoModule_Fails)
{
    GMimeDraftWriter writer(mFolder.Path("absent.so"));
    EXPECT_EQ(FailureNumber([&] { writer.Text({}); }), 429);
}

TEST_F(GMimeDraftWriterTest, Text_NoRoomForIt_Fails)
{
    struct rlimit former
    {
    };
    ::getrlimit(RLIMIT_FSIZE, &former);
    auto small = former;
    small.rlim_cur = 1000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto number = FailureNumber([&] { mWriter.Text({ {}, "s", std::string(100000, 'x') }); });
    ::setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(number == 57 || number == 61) << number;
}

}

}
