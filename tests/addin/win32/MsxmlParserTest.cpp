#include "addin/win32/MsxmlParser.h"

#include "addin/base/Windows.h"
#include "portable/TreeXml.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tempodial {

class MsxmlParserTest : public testing::Test
{
protected:
    MsxmlParserTest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~MsxmlParserTest() override
    {
        mDocument = nullptr;
        mFactory.reset();
        CoUninitialize();
    }

    std::string TextAt(const std::string& path)
    {
        const auto node = mDocument->SelectSingleNode(path);
        return node ? node->Text() : "absent";
    }

    std::optional<TreeXmlFactory> mFactory { std::make_shared<MsxmlParser>() };
    Ref<XmlDocument> mDocument = mFactory->NewDocument();
};

TEST_F(MsxmlParserTest, LoadXML_SlotLine_GivesItsNodes)
{
    const std::string line = "<slot><StartTime>36000</StartTime><EndTime>36300</EndTime>"
                             "<WordDocName>plan &amp; budget.doc</WordDocName><Project></Project> </slot>";
    ASSERT_TRUE(mDocument->LoadXML(line));
    EXPECT_EQ(mDocument->Xml(), line);
    EXPECT_EQ(TextAt("slot/StartTime"), "36000");
    EXPECT_EQ(TextAt("slot/WordDocName"), "plan & budget.doc");
    EXPECT_EQ(TextAt("slot/Project"), "");
    EXPECT_EQ(TextAt("slot/Detail"), "absent");
    EXPECT_EQ(TextAt("slot"), "3600036300plan & budget.doc ");
}

TEST_F(MsxmlParserTest, LoadXML_SeveralTexts_HoldsTheLast)
{
    ASSERT_TRUE(mDocument->LoadXML("<a>1</a>"));
    ASSERT_FALSE(mDocument->LoadXML("<a>"));
    EXPECT_TRUE(mDocument->IsEmpty());
    ASSERT_TRUE(mDocument->LoadXML("<b>2</b>"));
    EXPECT_EQ(TextAt("b"), "2");
    EXPECT_EQ(TextAt("a"), "absent");
}

TEST_F(MsxmlParserTest, Declaration_OfAnotherEncoding_DoesNotMatter)
{
    ASSERT_TRUE(
        mDocument->LoadXML("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<view type=\"table\">Łódź</view>"));
    EXPECT_EQ(TextAt("view"), "Łódź");
    mDocument->SelectSingleNode("view")->SetText("<new>");
    EXPECT_NE(mDocument->Xml().find("<view type=\"table\">&lt;new&gt;</view>"), std::string::npos) << mDocument->Xml();
}

TEST_F(MsxmlParserTest, LoadXML_CommentsAndSections_AreReadAsTheyMean)
{
    ASSERT_TRUE(mDocument->LoadXML("<!-- <!DOCTYPE --><a><!-- c --><![CDATA[<b>]]>&#65;<?p i?></a>"));
    EXPECT_EQ(TextAt("a"), "<b>A");
}

TEST_F(MsxmlParserTest, LoadXML_WhatMustBeRefused_IsEmpty)
{
    std::string deep;
    for (int level = 0; level < 65; ++level) {
        deep.insert(0, "<a>").append("</a>");
    }
    for (const auto& text : { std::string(), std::string("<a"), std::string("<a></b>"), std::string("text"),
             std::string("<a/><b/>"), std::string("<a>&none;</a>"), std::string("<!DOCTYPE a><a/>"),
             std::string("<?xml version=\"1.0\"?><!-- --><!DOCTYPE a [<!ENTITY e \"x\">]><a>&e;</a>"),
             std::string("<a>\xFF</a>"), std::string("<a>\0</a>", 8), deep }) {
        EXPECT_FALSE(mDocument->LoadXML(text)) << text;
        EXPECT_TRUE(mDocument->IsEmpty()) << text;
    }
    EXPECT_TRUE(mDocument->LoadXML(deep.substr(3, deep.size() - 7)));
}

}
