#include "desktop/TableViewLayout.h"

#include "host/system/ExpatParser.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace tempodial {

namespace {

using testing::ElementsAre;

class TableViewLayoutTest : public testing::Test
{
protected:
    std::optional<TableViewLayout> Read(const std::string& xml) { return TableViewLayout::Read(xml, mParser); }
    /// The only column of a view whose column holds that.
    TableColumn Column(const std::string& content)
    {
        return Read("<view><column><heading>H</heading>" + content + "</column></view>").value().columns.at(0);
    }

    ExpatParser mParser;
};

std::vector<std::string> FieldsOf(const std::vector<TableColumn>& columns)
{
    std::vector<std::string> fields;
    for (const auto& column : columns) {
        fields.push_back(column.field);
    }
    return fields;
}

}

TEST_F(TableViewLayoutTest, Read_ViewOfTheProduct_HasItsColumnsGroupsAndOrder)
{
    std::ostringstream xml;
    xml << std::ifstream(TEMPODIAL_SOURCE_DIR "/resources/WorkLogCategoryView.xml").rdbuf();
    const auto view = Read(xml.str());
    ASSERT_TRUE(view);
    EXPECT_THAT(FieldsOf(view->columns),
        ElementsAre(
            "Day", "StartTime", "Duration", "Project", "Type", "Description", "People", "Keyword", "ApplyPast"));
    EXPECT_EQ(view->columns[4].heading, "Application");
    EXPECT_EQ(view->columns[5].width, 300);
    EXPECT_EQ(view->columns[2].alignment, TableColumn::Alignment::Right);
    EXPECT_EQ(view->columns[3].alignment, TableColumn::Alignment::Left);
    ASSERT_EQ(view->groups.size(), 1U);
    EXPECT_EQ(view->groups[0].field, "Project");
    EXPECT_FALSE(view->groups[0].isDescending);
    ASSERT_EQ(view->orders.size(), 1U);
    EXPECT_EQ(view->orders[0].field, "Start");
    EXPECT_TRUE(view->orders[0].isDescending);
}

TEST_F(TableViewLayoutTest, Read_Headings_AreThoseOfTheUserFirst)
{
    EXPECT_EQ(Column("").heading, "H");
    EXPECT_EQ(Column("<userheading>Mine</userheading>").heading, "Mine");
}

TEST_F(TableViewLayoutTest, Read_Properties_AreKnownBySchemaAndNumber)
{
    EXPECT_EQ(Column("<prop>urn:schemas:calendar:dtend</prop>").field, "End");
    EXPECT_EQ(Column("<prop>urn:schemas:httpmail:subject</prop>").field, "Subject");
    EXPECT_EQ(Column("<prop>http://schemas.microsoft.com/mapi/id/{00062002}/820d0040</prop>").field, "Start");
    EXPECT_EQ(Column("<prop>http://x/string/{1}/My field</prop>").field, "My field");
    EXPECT_EQ(Column("").field, "");
}

TEST_F(TableViewLayoutTest, Read_Widths_StayUsable)
{
    EXPECT_EQ(Column("<width>50</width>").width, 50);
    EXPECT_EQ(Column("<width>1</width>").width, 20);
    EXPECT_EQ(Column("<width>2000000000</width>").width, 2000);
    EXPECT_EQ(Column("<width>wide</width>").width, 100);
    EXPECT_EQ(Column("").width, 100);
}

TEST_F(TableViewLayoutTest, Read_Alignment_IsThatOfTheStyle)
{
    EXPECT_EQ(Column("<style>padding-left:3px;text-align:center</style>").alignment, TableColumn::Alignment::Centre);
}

TEST_F(TableViewLayoutTest, Read_SeveralOrders_StandInTheirOrder)
{
    const auto view = Read("<view><column><heading>H</heading></column><orderby><order><prop>a/B</prop></order>"
                           "<order><prop>a/C</prop><sort>desc</sort></order></orderby></view>");
    ASSERT_TRUE(view);
    ASSERT_EQ(view->orders.size(), 2U);
    EXPECT_EQ(view->orders[1].field, "C");
    EXPECT_TRUE(view->groups.empty());
}

TEST_F(TableViewLayoutTest, Read_WhatIsNoTable_IsNothing)
{
    EXPECT_FALSE(Read(""));
    EXPECT_FALSE(Read("<view>"));
    EXPECT_FALSE(Read("<form><column><heading>H</heading></column></form>"));
    EXPECT_FALSE(Read("<view type=\"calendar\"><displaytimeunits>30</displaytimeunits></view>"));
    EXPECT_FALSE(Read("<view><column><name>HREF</name></column></view>"));
}

}
