#include "portable/PlainXml.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {

namespace {

constexpr std::size_t Deepest = 3;

/// What a plain document holds, as XML; nothing when it isn't read.
std::string XmlOf(std::string_view text)
{
    XmlTree tree;
    return PlainXml(text, tree).Read(Deepest) ? tree.Xml(XmlTree::Document) : std::string();
}

}

TEST(PlainXmlTest, Read_PlainDocument_IsTaken)
{
    const std::string slot = "<slot><Start.Time_2>36000</Start.Time_2><a-b/>text \t\n]] >\u00FC\u20AC\U0001F600</slot>";
    EXPECT_EQ(XmlOf(" \t\r\n" + slot + "\r\n"),
        "<slot><Start.Time_2>36000</Start.Time_2><a-b/>text \t\n]] &gt;"
        "\u00FC\u20AC\U0001F600</slot>");
    EXPECT_EQ(XmlOf("<slot/>"), "<slot/>");
    EXPECT_EQ(XmlOf("<slot></slot>"), "<slot/>");
    EXPECT_EQ(XmlOf("<a><b><c>1</c></b></a>"), "<a><b><c>1</c></b></a>");
}

TEST(PlainXmlTest, Read_Entities_AreOneTextWithWhatStandsBeside)
{
    XmlTree tree;
    ASSERT_TRUE(PlainXml("<a>&lt;b&gt; &amp;amp; &quot;&apos;&amp;</a>", tree).Read(Deepest));
    EXPECT_EQ(tree.Text(XmlTree::Document), "<b> &amp; \"'&");
}

TEST(PlainXmlTest, Read_AnythingElse_IsLeftToAnother)
{
    for (const std::string text : { "", " ", "x", "<", "<a", "<a>", "<a/", "<a></a", "<a><b></a>", "<a></b>",
             "<a></ab>", "</a>", "<a></a></a>", "<a/><a/>", "<a/>x", "x<a/>", "<a>x", "<a b='1'/>", "<a b='1'></a>",
             "<a ></a>", "<a></a >", "<1a/>", "<-a/>", "<a:b/>", "<\u00E4/>", "<a>\r</a>", "<a>\x01</a>", "<a>]]></a>",
             "<a>\xC0\xAF</a>", "<a>\xED\xA0\x80</a>", "<a>\uFFFE</a>", "<a>\uFFFF</a>", "<a>&nbsp;</a>",
             "<a>&#65;</a>", "<a>&amp</a>", "<a>&</a>", "<a><!-- --></a>", "<!-- --><a/>", "<a/><!-- -->",
             "<a><![CDATA[b]]></a>", "<?xml version='1.0'?><a/>", "<!DOCTYPE a><a/>", "<a><b><c><d/></c></b></a>" }) {
        EXPECT_EQ(XmlOf(text), "") << text;
    }
    EXPECT_EQ(XmlOf(std::string("<a>\0</a>", 8)), "");
}

}
