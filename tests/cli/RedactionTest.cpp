#include "cli/Redaction.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(RedactionTest, TrackerFile_Slot_KeepsTimesAndKindsAlone)
{
    EXPECT_EQ(RedactedTrackerFile("Tracker of Ann\r\n"
                                  "<slot><StartTime>32400</StartTime><EndTime>32700</EndTime><AppType>2</AppType>"
                                  "<WordDocName>Zo\u00EB 1.doc</WordDocName><Continuation>1</Continuation></slot>\r\n"),
        "xxxxxxxxxxxxxx\r\n"
        "<slot><StartTime>32400</StartTime><EndTime>32700</EndTime><AppType>2</AppType>"
        "<WordDocName>xxxxxxxxx</WordDocName><Continuation>1</Continuation></slot>\r\n");
}

TEST(RedactionTest, TrackerFile_NumbersElsewhere_AreHidden)
{
    EXPECT_EQ(RedactedTrackerFile("<slot><Project>4711</Project>12<StartTime>secret</StartTime></slot>"),
        "<slot><Project>xxxx</Project>xx<StartTime>xxxxxx</StartTime></slot>");
}

TEST(RedactionTest, TrackerFile_WhateverIsNoSlot_IsHidden)
{
    for (const auto* line : { "<slot name=\"secret\">", "<secret>", "<![CDATA[<slot>secret]]>", "<!-- secret -->",
             "<secret", "secret>", "<<secret>>", "&secret;" }) {
        EXPECT_EQ(RedactedTrackerFile(line).find("secret"), std::string::npos) << line;
    }
    EXPECT_EQ(RedactedTrackerFile(""), "");
    EXPECT_EQ(RedactedTrackerFile("\n\n<slot>"), "\n\n<slot>");
}

TEST(RedactionTest, Trace_Lines_KeepTheProgramsOwnWords)
{
    const std::string head = "31101 11/22/2026 4:47:42 AM: ";
    const auto redacted = [&head](const std::string& text) { return RedactedTrace(head + text); };
    EXPECT_EQ(redacted("TDMain loaded forms"), head + "TDMain loaded forms");
    EXPECT_EQ(redacted("TDDataHandler load line: <slot>secret</slot>"), head + "TDDataHandler load line: ...");
    EXPECT_EQ(
        redacted("TDDataHandler continuation of Notepad, \"secret\""), head + "TDDataHandler continuation of ...");
    EXPECT_EQ(redacted("TDWorklog CreateCalendarItem - \"secret\""), head + "TDWorklog CreateCalendarItem ...");
    EXPECT_EQ(redacted("TDWorklog old: Secret new: Plan"), head + "TDWorklog old: ...");
    EXPECT_EQ(redacted("TDMain secret@example.com"), head + "TDMain ...");
    EXPECT_EQ(redacted("TDExplorer: 3 Init explorer"), head + "TDExplorer: ...");
}

TEST(RedactionTest, Trace_Error_KeepsItsTextWhereThatIsTheProgramsOwn)
{
    const std::string head = "1 22.11.2026 04:47:42: ";
    EXPECT_EQ(RedactedTrace(head + "TDDataHandler SyncData error File not found secret"),
        head + "TDDataHandler SyncData error File not found ...");
    EXPECT_EQ(RedactedTrace(head + "TDDataHandler SyncData error secret"), head + "TDDataHandler SyncData error ...");
}

TEST(RedactionTest, Trace_RestOfALine_IsHidden)
{
    EXPECT_EQ(RedactedTrace("Tempodial Version: 1.2.0\r\n\r\nsecret\r\n2026 secret: a\r\n"),
        "Tempodial Version: 1.2.0\r\n\r\n...\r\n...\r\n");
}

}
