#include "host/windows/FormPageLayout.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(FormPageLayoutTest, Read_GivesRowsOfControls)
{
    const auto layout = FormPageLayout::Read(R"({ "page": "Activity", "rows": [
        [{ "name": "A", "kind": "combo", "label": "&One", "field": "Project" }],
        [{ "name": "B", "kind": "text" }, { "name": "C", "kind": "check", "field": "ApplyPast" }] ] })");
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->name, "Activity");
    ASSERT_EQ(layout->rows.size(), 2);
    ASSERT_EQ(layout->rows[0].size(), 1);
    EXPECT_EQ(layout->rows[0][0].name, "A");
    EXPECT_EQ(layout->rows[0][0].kind, FormPageLayout::Kind::Combo);
    EXPECT_EQ(layout->rows[0][0].label, "&One");
    EXPECT_EQ(layout->rows[0][0].field, "Project");
    ASSERT_EQ(layout->rows[1].size(), 2);
    EXPECT_EQ(layout->rows[1][0].kind, FormPageLayout::Kind::Text);
    EXPECT_EQ(layout->rows[1][0].label, "");
    EXPECT_EQ(layout->rows[1][0].field, "");
    EXPECT_EQ(layout->rows[1][1].kind, FormPageLayout::Kind::Check);
}

TEST(FormPageLayoutTest, Read_WhatIsNoLayout_IsNothing)
{
    for (const auto* text : { "", "{", "[]", "1", R"("text")", "{}", R"({ "page": "A" })", R"({ "rows": [] })",
             R"({ "page": 1, "rows": [] })", R"({ "page": "A", "rows": [[{}]] })", R"({ "page": "A", "rows": ["x"] })",
             R"({ "page": "A", "rows": [[{ "name": "B", "kind": "other" }]] })",
             R"({ "page": "A", "rows": [[{ "name": "B", "kind": "text", "label": 1 }]] })", "\xff\xfe" }) {
        EXPECT_FALSE(FormPageLayout::Read(text)) << text;
    }
}

}
