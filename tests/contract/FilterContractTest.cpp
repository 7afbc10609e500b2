#include "contract/ContractStores.h"
#include "contract/StoreContract.h"

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

class FilterContract : public StoreContract
{
protected:
    FilterContract()
    {
        SavedItem("first", At(9, 0, 30), At(9, 59, 59));
        SavedItem("second", At(10, 0), At(10, 5, 30));
        SavedItem("Third", At(10, 5, 30), At(10, 30));
    }
};

TEST_P(FilterContract, Start_EachOperator_ComparesAtMinuteGrain)
{
    const auto at = Quoted(At(10, 5));
    EXPECT_THAT(Filtered("[Start] = " + at), ElementsAre("Third"));
    EXPECT_THAT(Filtered("[Start] <> " + at), ElementsAre("first", "second"));
    EXPECT_THAT(Filtered("[Start] < " + at), ElementsAre("first", "second"));
    EXPECT_THAT(Filtered("[Start] <= " + at), ElementsAre("first", "second", "Third"));
    EXPECT_THAT(Filtered("[Start] > " + at), IsEmpty());
    EXPECT_THAT(Filtered("[Start] >= " + at), ElementsAre("Third"));
}

TEST_P(FilterContract, End_EachOperator_ComparesAtMinuteGrain)
{
    const auto at = Quoted(At(10, 5));
    EXPECT_THAT(Filtered("[End] = " + at), ElementsAre("second"));
    EXPECT_THAT(Filtered("[End] <> " + at), ElementsAre("first", "Third"));
    EXPECT_THAT(Filtered("[End] < " + at), ElementsAre("first"));
    EXPECT_THAT(Filtered("[End] <= " + at), ElementsAre("first", "second"));
    EXPECT_THAT(Filtered("[End] > " + at), ElementsAre("Third"));
    EXPECT_THAT(Filtered("[End] >= " + at), ElementsAre("second", "Third"));
}

TEST_P(FilterContract, Find_EndOfTheSameMinute_Hits)
{
    EXPECT_EQ(mLog->Items()->Find("[End] = " + Quoted(At(10, 5)))->Subject(), "second");
    EXPECT_FALSE(mLog->Items()->Find("[End] = " + Quoted(At(10, 4))));
    EXPECT_FALSE(mLog->Items()->Find("[End] = " + Quoted(At(10, 6))));
}

TEST_P(FilterContract, Day_BothEndsIncluded)
{
    SavedItem("last", At(23, 59, 59), At(23, 59, 59));
    SavedItem("next day", At(0, 0).AddDays(1), At(0, 5).AddDays(1));
    SavedItem("midnight", At(0, 0), At(0, 5));
    EXPECT_THAT(Filtered("[Start] >= " + Quoted(At(0, 0)) + " and [Start] <= " + Quoted(At(23, 59))),
        ElementsAre("first", "second", "Third", "last", "midnight"));
}

TEST_P(FilterContract, Range_UpperEndLeftOut)
{
    EXPECT_THAT(Filtered("[Start] >= " + Quoted(At(9, 0)) + " and [Start] < " + Quoted(At(10, 5))),
        ElementsAre("first", "second"));
}

TEST_P(FilterContract, Overlap_TakesWhatTouchesTheSpan)
{
    SavedItem("days", At(0, 0).AddDays(-40), At(0, 0).AddDays(40));
    SavedItem("over midnight", At(23, 50), At(0, 10).AddDays(1));
    const auto overlap
        = [&](Date from, Date to) { return Filtered("[End] > " + Quoted(from) + " and [Start] <= " + Quoted(to)); };
    EXPECT_THAT(overlap(At(0, 0), At(23, 59)), ElementsAre("first", "second", "Third", "days", "over midnight"));
    EXPECT_THAT(overlap(At(0, 0).AddDays(1), At(23, 59).AddDays(1)), ElementsAre("days", "over midnight"));
    EXPECT_THAT(overlap(At(9, 59), At(10, 4)), ElementsAre("second", "days"));
    EXPECT_THAT(overlap(At(0, 0).AddDays(40), At(23, 59).AddDays(40)), IsEmpty());
}

TEST_P(FilterContract, Overlap_EveryLength_IsFound)
{
    std::vector<std::string> all;
    for (std::int64_t length = 1; length < 300'000'000'000 / 60; length *= 3) {
        const auto name = std::to_string(length);
        SavedItem(name, At(12, 0).AddMinutes(1 - length), At(12, 1));
        SavedItem(name + "-", At(12, 0).AddMinutes(-length), At(12, 0));
        all.push_back(name);
        if (length > 500'000'000) {
            break;
        }
    }
    EXPECT_THAT(Filtered("[End] > " + Quoted(At(12, 0)) + " and [Start] <= " + Quoted(At(12, 0))),
        testing::ElementsAreArray(all));
}

TEST_P(FilterContract, Text_IgnoresCase)
{
    EXPECT_THAT(Filtered("[Subject] = \"THIRD\""), ElementsAre("Third"));
    EXPECT_THAT(Filtered("[SUBJECT] = 'third'"), ElementsAre("Third"));
    EXPECT_THAT(Filtered("[Subject] <> \"third\""), ElementsAre("first", "second"));
    EXPECT_THAT(Filtered("[Subject] > \"FIRST\""), ElementsAre("second", "Third"));
    EXPECT_THAT(Filtered("[Subject] <= \"first\""), ElementsAre("first"));
}

TEST_P(FilterContract, Text_OtherStandardFields)
{
    const auto item = NewItem("m", At(11, 0), At(11, 30));
    item->SetMileage("Plan");
    item->SetBillingInformation("Größe");
    item->Save();
    EXPECT_THAT(Filtered("[Mileage] = \"plan\""), ElementsAre("m"));
    EXPECT_THAT(Filtered("[BillingInformation] = \"GRÖSSE\""), IsEmpty());
    EXPECT_THAT(Filtered("[BillingInformation] = \"GRÖßE\""), ElementsAre("m"));
    EXPECT_EQ(Filtered("[MessageClass] = \"ipm.appointment\"").size(), 4U);
    EXPECT_THAT(Filtered("[Duration] = 30"), ElementsAre("m"));
    EXPECT_THAT(Filtered("[Duration] >= \"30\" and [Subject] <> 'm'"), ElementsAre("first"));
    EXPECT_THAT(Filtered("[IsRecurring] = True"), IsEmpty());
}

TEST_P(FilterContract, Text_QuotesInsideAreDoubled)
{
    SavedItem("say \"hi\"", At(11, 0), At(11, 5));
    SavedItem("it's", At(11, 0), At(11, 5));
    EXPECT_THAT(Filtered("[Subject] = \"say \"\"hi\"\"\""), ElementsAre("say \"hi\""));
    EXPECT_THAT(Filtered("[Subject] = 'say \"hi\"'"), ElementsAre("say \"hi\""));
    EXPECT_THAT(Filtered("[Subject] = 'it''s'"), ElementsAre("it's"));
    EXPECT_THAT(Filtered("[Subject] = \"\""), IsEmpty());
}

TEST_P(FilterContract, Connections_BindAsUsual)
{
    EXPECT_THAT(Filtered("[Subject]=\"first\" or [Subject]=\"second\" AND [Mileage]=\"x\""), ElementsAre("first"));
    EXPECT_THAT(
        Filtered("([Subject]=\"first\" Or [Subject]=\"second\") and [Mileage]=\"\""), ElementsAre("first", "second"));
    EXPECT_THAT(Filtered("not [Subject] = \"first\""), ElementsAre("second", "Third"));
    EXPECT_THAT(Filtered("not ([Subject] = \"first\" or not [Subject] = \"Third\")"), ElementsAre("Third"));
    EXPECT_THAT(Filtered("[Start] >= " + Quoted(At(10, 0)) + " or [End] = " + Quoted(At(9, 59))),
        ElementsAre("first", "second", "Third"));
    EXPECT_THAT(Filtered("not [Start] >= " + Quoted(At(10, 0))), ElementsAre("first"));
}

TEST_P(FilterContract, UserProperty_OfEachType)
{
    const auto item = NewItem("own", At(11, 0), At(11, 5));
    item->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue("Alpha");
    item->UserProperties()->Add("Day", PropertyType::DateTime, true)->SetValue(At(9, 5, 30));
    item->UserProperties()->Add("ApplyPast", PropertyType::YesNo, true)->SetValue(true);
    item->Save();
    EXPECT_THAT(Filtered("[Project] = \"alpha\""), ElementsAre("own"));
    EXPECT_THAT(Filtered("[project] = \"\""), ElementsAre("first", "second", "Third"));
    EXPECT_THAT(Filtered("[Project] <> \"alpha\""), ElementsAre("first", "second", "Third"));
    EXPECT_THAT(Filtered("[Day] = " + Quoted(At(9, 5))), ElementsAre("own"));
    EXPECT_THAT(Filtered("[Day] > " + Quoted(At(9, 5))), IsEmpty());
    EXPECT_THAT(Filtered("[Day] <> " + Quoted(At(9, 5))), ElementsAre("first", "second", "Third"));
    EXPECT_THAT(Filtered("not [Day] < " + Quoted(At(9, 5))), ElementsAre("first", "second", "Third", "own"));
    EXPECT_THAT(Filtered("[ApplyPast] = True"), ElementsAre("own"));
    EXPECT_THAT(Filtered("[ApplyPast] = false"), ElementsAre("first", "second", "Third"));
    EXPECT_EQ(FailureNumber([&] { mCalendar->Items()->Restrict("[Project] = \"alpha\""); }), 5);
}

TEST_P(FilterContract, UserProperty_NotAmongTheFoldersFields_IsUnknown)
{
    const auto item = NewItem("own", At(11, 0), At(11, 5));
    item->UserProperties()->Add("Secret", PropertyType::Text, false);
    item->Save();
    EXPECT_EQ(FailureNumber([&] { Filtered("[Secret] = \"\""); }), 5);
}

TEST_P(FilterContract, Unreadable_Fails)
{
    for (const std::string filter : { "", " ", "x", "[Subject]", "[Subject] =", "[Subject] = \"a", "[Subject = \"a\"",
             "[] = \"a\"", "[Subject] == \"a\"", "[Subject] = \"a\" and", "([Subject] = \"a\"", "[Subject] = \"a\")",
             "[Subject] = \"a\" [Subject] = \"b\"", "[Subject] = a", "[Subject] like \"a\"", "not", "and",
             "[Subject] = \"a\" xor [Subject] = \"b\"", "[Body] = \"a\"", "[EntryID] = \"a\"", "[Absent] = \"a\"" }) {
        EXPECT_EQ(FailureNumber([&] { mLog->Items()->Restrict(filter); }), 5) << filter;
        EXPECT_EQ(FailureNumber([&] { mLog->Items()->Find(filter); }), 5) << filter;
    }
}

TEST_P(FilterContract, ValueThatDoesNotFit_Fails)
{
    for (const std::string filter :
        { "[Start] = \"noon\"", "[End] > \"\"", "[Duration] = \"x\"", "[IsRecurring] = \"maybe\"" }) {
        EXPECT_EQ(FailureNumber([&] { mLog->Items()->Restrict(filter); }), 13) << filter;
    }
}

INSTANTIATE_TEST_SUITE_P(Stores, FilterContract, testing::ValuesIn(ContractStores()), StoreName);

}
