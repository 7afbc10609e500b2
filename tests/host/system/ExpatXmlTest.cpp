#include "host/system/ExpatXml.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {
namespace {

constexpr auto OneSlot = "<slot><StartTime>36000</StartTime><EndTime>36300</EndTime><AppType>2</AppType>"
                         "<WordDocName>plan &amp; budget.doc</WordDocName><Project></Project></slot>";

class ExpatXmlTest : public testing::Test
{
protected:
    std::string TextAt(const std::string& path)
    {
        const auto node = mDocument->SelectSingleNode(path);
        return node ? node->Text() : "absent";
    }
    static std::string Nested(int depth)
    {
        std::string xml;
        for (int level = 0; level < depth; ++level) {
            xml += "<a>";
        }
        for (int level = 0; level < depth; ++level) {
            xml += "</a>";
        }
        return xml;
    }

    ExpatXmlFactory mFactory;
    Ref<XmlDocument> mDocument = mFactory.NewDocument();
};

TEST_F(ExpatXmlTest, NewDocument_NothingLoaded_IsEmpty)
{
    EXPECT_TRUE(mDocument->IsEmpty());
    EXPECT_EQ(mDocument->Xml(), "");
    EXPECT_EQ(mDocument->Text(), "");
    EXPECT_FALSE(mDocument->SelectSingleNode("slot"));
}

TEST_F(ExpatXmlTest, LoadXML_SlotLine_GivesItsNodes)
{
    ASSERT_TRUE(mDocument->LoadXML(OneSlot));
    EXPECT_FALSE(mDocument->IsEmpty());
    EXPECT_EQ(mDocument->Xml(), OneSlot);
    EXPECT_EQ(TextAt("slot/StartTime"), "36000");
    EXPECT_EQ(TextAt("slot/WordDocName"), "plan & budget.doc");
    EXPECT_EQ(TextAt("slot/Project"), "");
    EXPECT_EQ(TextAt("slot/Detail"), "absent");
    EXPECT_EQ(TextAt("slot"), "36000363002plan & budget.doc");
    EXPECT_EQ(mDocument->Text(), "36000363002plan & budget.doc");
}

TEST_F(ExpatXmlTest, SelectSingleNode_Path_FindsTheFirstMatchFromThere)
{
    ASSERT_TRUE(mDocument->LoadXML("<r><a><x>1</x></a><a><b>2</b></a><a><b>3</b></a><b>4</b></r>"));
    EXPECT_EQ(TextAt("r/a/b"), "2");
    EXPECT_EQ(TextAt("r/b"), "4");
    EXPECT_EQ(mDocument->SelectSingleNode("r/a")->SelectSingleNode("x")->Text(), "1");
    EXPECT_FALSE(mDocument->SelectSingleNode("r/a")->SelectSingleNode("r"));
    for (const auto* path : { "", "/", "/r", "r/", "R", "r/A", "a", "r/a/x/y", "r//b" }) {
        EXPECT_EQ(TextAt(path), "absent") << path;
    }
}

TEST_F(ExpatXmlTest, Text_AllKinds_IsResolvedAndKeepsItsBlanks)
{
    ASSERT_TRUE(mDocument->LoadXML("<slot><w> a\t-  </w><e>&lt;&gt;&amp;&quot;&apos;&#65;&#x20AC;</e>"
                                   "<c>x<![CDATA[<b>&amp;]]>y</c><m>1<!-- no -->2<?pi no?>3</m>"
                                   "<l>one\r\ntwo\rthree\nfour&#13;</l><n>a<i>b</i>c</n><s/></slot>"));
    EXPECT_EQ(TextAt("slot/w"), " a\t-  ");
    EXPECT_EQ(TextAt("slot/e"), "<>&\"'A\u20AC");
    EXPECT_EQ(TextAt("slot/c"), "x<b>&amp;y");
    EXPECT_EQ(TextAt("slot/m"), "123");
    EXPECT_EQ(TextAt("slot/l"), "one\ntwo\nthree\nfour\r");
    EXPECT_EQ(TextAt("slot/n"), "abc");
    EXPECT_EQ(TextAt("slot/s"), "");
}

TEST_F(ExpatXmlTest, LoadXML_NotWellFormed_IsRefused)
{
    const struct
    {
        const char* name;
        std::string text;
    } rows[] = {
        { "truncated inside a tag", "<slot><EndTime>1</EndTi" },
        { "truncated after a child", "<slot><EndTime>1</EndTime>" },
        { "two roots", "<slot/><slot/>" },
        { "text behind the root", "<slot/>x" },
        { "text before the root", "x<slot/>" },
        { "an attribute twice", "<slot a='1' a='2'/>" },
        { "an undefined entity", "<slot>&nbsp;</slot>" },
        { "a bare ampersand", "<slot>a & b</slot>" },
        { "a less-than sign in an attribute", "<slot a='<'/>" },
        { "an attribute without quotes", "<slot a=1/>" },
        { "a mismatched end tag", "<slot><a></b></slot>" },
        { "character 1", "<slot>\x01</slot>" },
        { "a reference to character 1", "<slot>&#1;</slot>" },
        { "a NUL byte", std::string("<slot>a\0b</slot>", 16) },
        { "a NUL byte behind", std::string("<slot/>\0", 8) },
        { "a NUL byte in a name", std::string("<sl\0ot/>", 8) },
        { "an overlong sequence", "<slot>\xC0\xAF</slot>" },
        { "an overlong sequence of three", "<slot>\xE0\x80\xAF</slot>" },
        { "a surrogate", "<slot>\xED\xA0\x80</slot>" },
        { "beyond the last character", "<slot>\xF4\x90\x80\x80</slot>" },
        { "U+FFFE", "<slot>\uFFFE</slot>" },
        { "U+FFFF", "<slot>\uFFFF</slot>" },
        { "an empty line", "" },
        { "only blanks", "   \t" },
        { "a blank before the declaration", " <?xml version=\"1.0\"?><slot/>" },
        { "no blank between attributes", "<slot a='1'b='2'/>" },
        { "the end of CDATA in text", "<slot>a]]>b</slot>" },
        { "a name that begins with a digit", "<slot><1a/></slot>" },
        { "a document type", "<!DOCTYPE slot><slot/>" },
        { "a document type with entities", "<!DOCTYPE slot [<!ENTITY a \"b\">]><slot>&a;</slot>" },
        { "a document type elsewhere", "<!DOCTYPE slot SYSTEM \"http://localhost/x.dtd\"><slot/>" },
        { "two byte-order marks", "\uFEFF\uFEFF<slot/>" },
        { "a byte-order mark behind a blank", " \uFEFF<slot/>" },
        { "only a byte-order mark", "\uFEFF" },
        { "a document in UTF-16", std::string("\xFF\xFE<\0s\0/\0>\0", 10) },
        { "a document in UTF-16 without a mark", std::string("<\0s\0/\0>\0", 8) },
        { "a document in the other UTF-16", std::string("\xFE\xFF\0<\0s\0/\0>", 10) },
        { "the same without a mark", std::string("\0<\0s\0/\0>", 8) },
        { "UTF-16 behind the mark of UTF-8", "\uFEFF" + std::string("<\0s\0/\0>\0", 8) },
        { "an unclosed comment", "<slot/><!-- " },
    };
    for (const auto& row : rows) {
        mDocument->LoadXML(OneSlot);
        EXPECT_FALSE(mDocument->LoadXML(row.text)) << row.name;
        EXPECT_TRUE(mDocument->IsEmpty()) << row.name;
        EXPECT_EQ(mDocument->Xml(), "") << row.name;
        EXPECT_FALSE(mDocument->SelectSingleNode("slot")) << row.name;
    }
    EXPECT_TRUE(mDocument->LoadXML(OneSlot));
}

TEST_F(ExpatXmlTest, LoadXML_UnusualButWellFormed_IsTaken)
{
    for (const std::string text :
        { "\uFEFF<slot>\u00FC</slot>", "  <slot>\u00FC</slot>", "<slot>\u00FC</slot>  \t", "<slot>\u00FC</slot>\r",
            "<?xml version=\"1.0\"?><slot>\u00FC</slot>", "\uFEFF<?xml version='1.0'?>\r\n<slot>\u00FC</slot>\r\n",
            "\uFEFF  <slot>\u00FC</slot>", "<?xml version=\"1.0\" encoding=\"windows-1252\"?><slot>\u00FC</slot>",
            "<?xml version=\"1.0\" encoding=\"UTF-16\"?><slot>\u00FC</slot>",
            "<?xml version=\"1.0\" encoding=\"no-such-encoding\"?><slot>\u00FC</slot>",
            "<!-- x --><slot>\u00FC</slot><!-- y -->" }) {
        EXPECT_TRUE(mDocument->LoadXML(text)) << text;
        EXPECT_EQ(TextAt("slot"), "\u00FC") << text;
    }
    ASSERT_TRUE(mDocument->LoadXML("\uFEFF<slot/>"));
    EXPECT_EQ(mDocument->Xml(), "<slot/>");
}

TEST_F(ExpatXmlTest, LoadXML_DepthOfADocument_HasABound)
{
    EXPECT_TRUE(mDocument->LoadXML(Nested(64)));
    EXPECT_FALSE(mDocument->LoadXML(Nested(65)));
    EXPECT_FALSE(mDocument->LoadXML(Nested(100000)));
}

TEST_F(ExpatXmlTest, LoadXML_SizeOfADocument_HasABound)
{
    const std::size_t bound = std::size_t { 16 } << 20;
    EXPECT_TRUE(mDocument->LoadXML("<a>" + std::string(bound - 7, 'x') + "</a>"));
    EXPECT_FALSE(mDocument->LoadXML("<a>" + std::string(bound - 6, 'x') + "</a>"));
}

TEST_F(ExpatXmlTest, LoadXML_SeveralDocumentsOfAFactory_StayApart)
{
    const auto other = mFactory.NewDocument();
    ASSERT_TRUE(mDocument->LoadXML("<a>1</a>"));
    ASSERT_FALSE(other->LoadXML("<a>2"));
    ASSERT_TRUE(other->LoadXML("<b>3</b>"));
    EXPECT_EQ(TextAt("a"), "1");
    EXPECT_EQ(other->Text(), "3");
}

TEST_F(ExpatXmlTest, NewDocument_FactoryIsGone_GoesOnWorking)
{
    const auto document = ExpatXmlFactory().NewDocument();
    EXPECT_TRUE(document->LoadXML("<a>1</a>"));
}

TEST_F(ExpatXmlTest, LoadXML_NodeHeldFromBefore_StaysAsItWas)
{
    mDocument->LoadXML("<a><b>1</b></a>");
    const auto node = mDocument->SelectSingleNode("a/b");
    mDocument->LoadXML("<c/>");
    EXPECT_EQ(node->Text(), "1");
    node->SetText("2");
    EXPECT_EQ(mDocument->Xml(), "<c/>");
    mDocument = nullptr;
    EXPECT_EQ(node->Text(), "2");
}

TEST_F(ExpatXmlTest, SetText_Element_ReplacesAllBelowAndKeepsTheRest)
{
    ASSERT_TRUE(
        mDocument->LoadXML("<?xml version=\"1.0\"?>\r\n<view type=\"table\" n='a&quot;&lt;&#10;b'>\r\n<!-- gone -->"
                           "<time>15<i/></time><other>x &amp; y</other><none></none></view>"));
    const auto node = mDocument->SelectSingleNode("view/time");
    node->SetText("5");
    EXPECT_EQ(node->Text(), "5");
    EXPECT_FALSE(node->SelectSingleNode("i"));
    EXPECT_EQ(mDocument->Xml(),
        "<?xml version=\"1.0\"?>\r\n<view type=\"table\" n=\"a&quot;&lt;&#10;b\">\n"
        "<time>5</time><other>x &amp; y</other><none/></view>");
}

TEST_F(ExpatXmlTest, SetText_AnyText_ComesBackThroughXml)
{
    for (const std::string text : { "", "plain", "<&>\"'", "]]>", "a\r\nb\tc ", " \u20AC\U0001F600 " }) {
        ASSERT_TRUE(mDocument->LoadXML("<v><t>old</t></v>"));
        mDocument->SelectSingleNode("v/t")->SetText(text);
        const auto copy = mFactory.NewDocument();
        ASSERT_TRUE(copy->LoadXML(mDocument->Xml())) << mDocument->Xml();
        EXPECT_EQ(copy->SelectSingleNode("v/t")->Text(), text);
    }
}

TEST_F(ExpatXmlTest, SetText_NotPossible_FailsAndChangesNothing)
{
    ASSERT_TRUE(mDocument->LoadXML("<v>old</v>"));
    const auto node = mDocument->SelectSingleNode("v");
    for (const auto& text : { std::string("\0", 1), std::string("\x01"), std::string("\xFF"), std::string("\uFFFE") }) {
        EXPECT_EQ(FailureNumber([&] { node->SetText(text); }), 5);
    }
    EXPECT_EQ(FailureNumber([&] { mDocument->SetText("new"); }), 438);
    EXPECT_EQ(mDocument->Xml(), "<v>old</v>");
}

}
}
