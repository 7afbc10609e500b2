#include "session/ProjectRecords.h"

#include "host/system/ExpatXml.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

std::string Record(const std::string& name, const std::string& rule = "", const std::string& precedence = "2")
{
    return "<project><name>" + name + "</name><subjrules>" + rule + "</subjrules><peoplerules></peoplerules>"
        + "<notsubjrules></notsubjrules><precedence>" + precedence + "</precedence></project>|";
}

ProjectRecords Read(const std::string& text)
{
    return { text, MakeRef<ExpatXmlFactory>() };
}

std::string TakenBack(const std::string& now, const std::string& before, const std::string& after)
{
    auto records = Read(now);
    records.TakeBack(Read(before), Read(after));
    return records.Text();
}

const std::string A = Record("A");
const std::string B = Record("B", "b");
const std::string C = Record("C");

}

TEST(ProjectRecordsTest, Text_IsWhatWasRead)
{
    EXPECT_EQ(Read(A + B).Text(), A + B);
    EXPECT_EQ(Read("").Text(), "");
    EXPECT_EQ(Read(A + "rubbish|" + B).Text(), A + B);
}

TEST(ProjectRecordsTest, ReadByAddIn_StopsWhereTheAddInDoes)
{
    const auto names = [](const std::string& text) {
        std::string listed;
        for (const auto& record : ProjectRecords::ReadByAddIn(text, MakeRef<ExpatXmlFactory>())) {
            listed += record.name + record.precedence + " ";
        }
        return listed;
    };
    EXPECT_EQ(names(A + Record("B", "b", "9")), "A2 B9 ");
    EXPECT_EQ(names(A + "|" + B), "A2 ");
    EXPECT_EQ(names(A + Record("Unknown") + B), "A2 ");
    EXPECT_EQ(names(A + A + B), "A2 ");
    EXPECT_EQ(names(A + "rubbish|" + B), "A2 NoneNone B2 ");
    EXPECT_EQ(names(A + "<project/>"), "A2 ") << "no sign ends it";
    EXPECT_EQ(names(""), "");
}

TEST(ProjectRecordsTest, Names_AreListed)
{
    EXPECT_EQ(Read(A + Record("Ann &amp; Bob") + C).Names(), "A|Ann & Bob|C");
    EXPECT_EQ(Read("").Names(), "");
}

TEST(ProjectRecordsTest, TakeBack_NothingElseChanged_IsAsBefore)
{
    EXPECT_EQ(TakenBack(A + B + C, A + C, A + B + C), A + C);
    EXPECT_EQ(TakenBack(A + C, A + B + C, A + C), A + B + C);
    EXPECT_EQ(TakenBack(A + Record("B", "x"), A + B, A + Record("B", "x")), A + B);
    EXPECT_EQ(TakenBack("", A, ""), A);
}

TEST(ProjectRecordsTest, TakeBack_OtherPrecedence_ComesToItsPlace)
{
    const auto high = Record("C", "", "1");
    EXPECT_EQ(TakenBack(high + A + B, A + B + C, high + A + B), A + B + C);
}

TEST(ProjectRecordsTest, TakeBack_ChangedSince_Stays)
{
    const auto other = Record("B", "other");
    EXPECT_EQ(TakenBack(A + other + C, A, A + B), A + other + C);
    EXPECT_EQ(TakenBack(C, A, A + B), C) << "gone since";
    EXPECT_EQ(TakenBack(A + B, A + B, A), A + B) << "made again since";
}

TEST(ProjectRecordsTest, TakeBack_OtherCaseOfAName_IsTheSameProject)
{
    EXPECT_EQ(TakenBack(Record("plan"), Record("Plan"), Record("plan")), Record("Plan"));
}

}
