#include "engine/reports/HtmlText.h"

#include "engine/reports/ReportsFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace tempodial {

namespace {

struct TextCase
{
    const char* name;
    std::string text;
    std::string result;
    /// The traced positions of the last address.
    std::string span;
};

std::string CaseName(const testing::TestParamInfo<TextCase>& info)
{
    return info.param.name;
}

std::string Link(const std::string& url)
{
    return "<a href='" + url + "'>" + url + "</a>";
}

class HtmlTextTest : public ReportsFixture
{
protected:
    HtmlText mHtml { mPlatform, mLog };
};

class HtmlTextEscapeTest : public HtmlTextTest, public testing::WithParamInterface<TextCase>
{
};

TEST_P(HtmlTextEscapeTest, HTMLEscape_Text_IsEscapedOnceAndInPlace)
{
    auto text = GetParam().text;
    EXPECT_EQ(mHtml.HTMLEscape(text), GetParam().result);
    EXPECT_EQ(text, GetParam().result);
    EXPECT_EQ(mHtml.HTMLEscape(text), GetParam().result) << "a second time";
}

INSTANTIATE_TEST_SUITE_P(Texts, HtmlTextEscapeTest,
    testing::Values(TextCase { "Empty", "", "" }, TextCase { "Plain", "plan", "plan" },
        TextCase { "Ampersand", "a & b", "a &amp; b" }, TextCase { "EscapedAmpersand", "a &amp; b", "a &amp; b" },
        TextCase { "Brackets", "<b>x</b>", "&lt;b&gt;x&lt;/b&gt;" },
        TextCase { "EscapedBrackets", "&lt;b&gt;", "&lt;b&gt;" }, TextCase { "EscapedTwice", "&amp;lt;", "&lt;" },
        TextCase { "AmpersandTwice", "&amp;amp;", "&amp;amp;" }, TextCase { "OtherEntity", "&quot;", "&amp;quot;" },
        TextCase { "QuotesStay", "\"a\" 'b'", "\"a\" 'b'" },
        TextCase {
            "OtherScripts", "\xe8\xa8\x88\xe7\x94\xbb <\xd8\xae>", "\xe8\xa8\x88\xe7\x94\xbb &lt;\xd8\xae&gt;" }),
    CaseName);

class HtmlTextMogrifyTest : public HtmlTextTest, public testing::WithParamInterface<TextCase>
{
};

TEST_P(HtmlTextMogrifyTest, HTMLMogrify_Text_LinksItsAddresses)
{
    EXPECT_EQ(mHtml.HTMLMogrify(GetParam().text), GetParam().result);
    const auto lines = Traced();
    if (GetParam().span.empty()) {
        EXPECT_THAT(lines, IsEmpty());
    } else {
        ASSERT_FALSE(lines.empty());
        EXPECT_EQ(lines.back(), "TDReport found url=" + GetParam().span);
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, HtmlTextMogrifyTest,
    testing::Values(TextCase { "Empty", "", "", "" },
        TextCase { "NoAddress", "see http: and https:/x", "see http: and https:/x", "" },
        TextCase { "OtherCase", "HTTP://x", "HTTP://x", "" },
        TextCase {
            "InTheMiddle", "see http://a.b/c now", "see " + Link("http://a.b/c") + " now", "http://a.b/c at [5,17)" },
        TextCase { "AtTheEnd", "https://x.y", Link("https://x.y"), "https://x.y at [1,12)" },
        TextCase { "SchemeAlone", "http://", Link("http://"), "http:// at [1,8)" },
        TextCase { "InBrackets", "(http://a.b/c)", "(" + Link("http://a.b/c") + ")", "http://a.b/c at [2,14)" },
        TextCase { "ClosingBracketAlone", "http://a.b/c)", Link("http://a.b/c)"), "http://a.b/c) at [1,14)" },
        TextCase {
            "BracketOpenedEarlier", "(see http://a.b/c)", "(see " + Link("http://a.b/c)"), "http://a.b/c) at [6,19)" },
        TextCase { "BracketAndStop", "(http://a.b/c).", "(" + Link("http://a.b/c)."), "http://a.b/c). at [2,16)" },
        TextCase { "SchemeInBrackets", "(http://)", "(" + Link("http://") + ")", "http:// at [2,9)" },
        TextCase { "Two", "a http://q and https://r z", "a " + Link("http://q") + " and " + Link("https://r") + " z",
            "https://r at [39,48)" },
        TextCase { "CommaGoesOn", "http://a,http://b", Link("http://a,http://b"), "http://a,http://b at [1,18)" },
        TextCase { "Escaped", "&lt;http://x&gt;", "&lt;" + Link("http://x&gt;"), "http://x&gt; at [5,17)" },
        TextCase { "QuoteEnds", "\"http://x\"y", "\"" + Link("http://x") + "\"y", "http://x at [2,10)" },
        TextCase {
            "SingleQuoteGoesOn", "'http://x'y", "'<a href='http://x&#39;y'>http://x'y</a>", "http://x'y at [2,12)" },
        TextCase { "SingleQuoteBefore", "http://x' http://y",
            "<a href='http://x&#39;'>http://x'</a> " + Link("http://y"), "http://y at [39,47)" },
        TextCase { "MarkupEnds", "<td>http://x</td>", "<td>" + Link("http://x") + "</td>", "http://x at [5,13)" },
        TextCase { "LineEnds", "http://x\r\nhttp://y\tz", Link("http://x") + "\r\n" + Link("http://y") + "\tz",
            "http://y at [34,42)" },
        TextCase { "BracketsTwice", "(http://a) (http://b)", "(" + Link("http://a") + ") (" + Link("http://b") + ")",
            "http://b at [36,44)" },
        TextCase { "OtherScripts", "\xe8\xa8\x88\xe7\x94\xbb http://\xe4\xbe\x8b x",
            "\xe8\xa8\x88\xe7\x94\xbb " + Link("http://\xe4\xbe\x8b") + " x", "http://\xe4\xbe\x8b at [4,12)" }),
    CaseName);

TEST_F(HtmlTextTest, HTMLMogrify_TwoAddresses_AreTracedInTheirOrder)
{
    mHtml.HTMLMogrify("http://a http://b");
    EXPECT_THAT(
        Traced(), ElementsAre("TDReport found url=http://a at [1,9)", "TDReport found url=http://b at [33,41)"));
}

TEST_F(HtmlTextTest, HTMLMogrify_LongText_LinksAll)
{
    mLog->SetBufferedTrace(true);
    std::string text;
    std::string linked;
    for (int index = 0; index < 20000; ++index) {
        const auto url = "http://x/" + std::to_string(index);
        text += url + " http and (https) ";
        linked += Link(url) + " http and (https) ";
    }
    EXPECT_EQ(mHtml.HTMLMogrify(text), linked);
}

}

}
