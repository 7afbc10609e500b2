#include "sources/ImportLedger.h"

#include "host/settings/TomlSettings.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

const Date FirstDay = Date::FromYearMonthDay(2026, 11, 2);
const Date SecondDay = Date::FromYearMonthDay(2026, 11, 3);

LedgerDay Slots(std::initializer_list<std::size_t> slots)
{
    LedgerDay day;
    for (const auto slot : slots) {
        day.slots.set(slot);
    }
    return day;
}

ImportLedger Again(const std::string& text)
{
    const TempFolder folder(TempFolder::InMemory());
    return ImportLedger(ReadSettingsFile(folder.Write("imported.toml", text)));
}

}

TEST(ImportLedgerTest, Text_ReadAgain_IsTheSame)
{
    ImportLedger ledger;
    auto day = Slots({ 0, 108, 287 });
    day.entries.insert(LedgerDay::EntryKey(60, 120, "toggl", "call", "P"));
    day.entries.insert(LedgerDay::EntryKey(60, 120, "toggl", "call", "Q"));
    ledger.Plan(FirstDay, day, "1");
    ledger.Close(FirstDay, true);
    ledger.Plan(SecondDay, Slots({ 5 }), "17");
    const auto again = Again(ledger.Text());
    EXPECT_EQ(again.Of(FirstDay).slots, day.slots);
    EXPECT_EQ(again.Of(FirstDay).entries, day.entries);
    EXPECT_EQ(again.Of(FirstDay).entries.size(), 2U);
    EXPECT_EQ(again.Planned(), (std::map<Date, std::string> { { SecondDay, "17" } }));
    EXPECT_FALSE(again.Of(SecondDay).slots.any());
    EXPECT_EQ(again.Text(), ledger.Text());
}

TEST(ImportLedgerTest, Close_PlanThatNeverWas_IsForgotten)
{
    ImportLedger ledger;
    ledger.Plan(FirstDay, Slots({ 1 }), "1");
    ledger.Close(FirstDay, false);
    EXPECT_FALSE(ledger.Of(FirstDay).slots.any());
    EXPECT_TRUE(ledger.Planned().empty());
    ledger.Plan(FirstDay, Slots({ 1 }), "1");
    ledger.Close(FirstDay, true);
    ledger.Plan(FirstDay, Slots({ 2 }), "2");
    ledger.Close(FirstDay, true);
    EXPECT_EQ(ledger.Of(FirstDay).slots.count(), 2U);
    ledger.Forget(FirstDay);
    EXPECT_FALSE(ledger.Of(FirstDay).slots.any());
}

TEST(ImportLedgerTest, ImportLedger_Damage_IsRefusedByLine)
{
    for (const auto* text : { "[[other]]\nday = \"2026-11-02\"\n", "[[day]]\nslots = \"0\"\n",
             "[[day]]\nday = \"2026-13-02\"\n", "[[day]]\nday = \"2026-11-02\"\nslots = \"xyz\"\n",
             "[[day]]\nday = \"2026-11-02\"\nentries = [\"a b\"]\n", "[[day]]\nday = 3\n",
             "[[day]]\nday = \"2026-11-02\"\nmark = \"1\"\n", "[[planned]]\nday = \"2026-11-02\"\nmark = \"\"\n" }) {
        EXPECT_THROW(Again(text), SettingsFileError) << text;
    }
    EXPECT_TRUE(Again("").Planned().empty());
    EXPECT_EQ(Again("[[planned]]\nday = \"2026-11-02\"\n").Planned().at(FirstDay), "");
}

}
