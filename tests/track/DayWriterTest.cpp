#include "track/DayWriter.h"

#include "base/Failure.h"
#include "support/SmallDisk.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

namespace {

constexpr auto HeadingLine = "Tempodial tracker 1, 2026-11-20, +01:00\r\n";
constexpr auto DayName = "tracker_granules20261120.out";

std::int64_t WriterMidnight()
{
    return Date::FromYearMonthDay(2026, 11, 20).Seconds();
}

FiledSlot SlotAt(std::int64_t start, bool continues = false)
{
    FiledSlot filed;
    filed.midnight = WriterMidnight();
    filed.slot.start = start;
    filed.slot.end = start + 300;
    filed.slot.continues = continues;
    filed.slot.words = { "A", 0, "t", "" };
    return filed;
}

std::string TextAt(std::int64_t start, const std::string& more = "")
{
    return "<slot><StartTime>" + std::to_string(start) + "</StartTime><EndTime>" + std::to_string(start + 300)
        + "</EndTime><AppType>0</AppType><AppName>A</AppName><WindowText>t</WindowText>" + more + "</slot>\r\n";
}

TEST(DayWriterTest, Save_NewFile_BeginsWithItsHeadingAndIsTheUsersAlone)
{
    const TempFolder folder;
    DayWriter writer(folder.Path());
    writer.Add(SlotAt(0));
    writer.Add(SlotAt(300, true));
    EXPECT_TRUE(writer.HasUnsaved());
    writer.Save(60);
    EXPECT_FALSE(writer.HasUnsaved());
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(0) + TextAt(300, "<Continuation>1</Continuation>"));
    EXPECT_EQ(std::filesystem::status(folder.Path(DayName)).permissions(),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_EQ(writer.SlotsOn(WriterMidnight()), 2);
}

TEST(DayWriterTest, Add_FileIsThere_GoesOnBehindItsLastLine)
{
    const TempFolder folder;
    folder.Write(DayName, HeadingLine + TextAt(300));
    DayWriter writer(folder.Path());
    EXPECT_EQ(writer.WrittenUntil(WriterMidnight()), 600);
    writer.Add(SlotAt(0));
    writer.Add(SlotAt(300));
    EXPECT_FALSE(writer.HasUnsaved());
    // The first line that a run writes goes on with nothing.
    writer.Add(SlotAt(600, true));
    writer.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(300) + TextAt(600));
    EXPECT_EQ(writer.SlotsOn(WriterMidnight()), 2);
}

TEST(DayWriterTest, Save_FileEndsAmidALine_BeginsANewOne)
{
    const TempFolder folder;
    folder.Write(DayName, HeadingLine + TextAt(0) + "<slot><Sta");
    DayWriter writer(folder.Path());
    writer.Add(SlotAt(300));
    writer.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(0) + "<slot><Sta\r\n" + TextAt(300));
}

TEST(DayWriterTest, Save_FileWasFinishedSince_MakesANewOne)
{
    const TempFolder folder;
    DayWriter writer(folder.Path());
    writer.Add(SlotAt(0));
    writer.Save(60);
    std::filesystem::remove(folder.Path(DayName));
    writer.Add(SlotAt(300, true));
    writer.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(300)) << "there is nothing to go on with";
    std::filesystem::rename(folder.Path(DayName), folder.Path("tracker_granules(done)20261120.out"));
    writer.Add(SlotAt(86100));
    writer.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(86100));
}

TEST(DayWriterTest, Restore_LinesThatWaited_AreSavedUnlessTheyAreThere)
{
    const TempFolder folder;
    DayWriter first(folder.Path());
    first.Add(SlotAt(0));
    first.Add(SlotAt(300));
    const auto unsaved = first.Unsaved();
    EXPECT_EQ(first.SlotsOn(WriterMidnight()), 0);
    folder.Write(DayName, HeadingLine + TextAt(0));
    DayWriter second(folder.Path());
    second.Restore(unsaved);
    EXPECT_EQ(second.WrittenUntil(WriterMidnight()), 600);
    EXPECT_EQ(second.SlotsOn(WriterMidnight()), 1);
    second.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(0) + TextAt(300));
    EXPECT_EQ(second.SlotsOn(WriterMidnight()), 2);
}

TEST(DayWriterTest, Erase_LinesThatWait_AreGoneFromTheMomentOn)
{
    const TempFolder folder;
    DayWriter writer(folder.Path());
    writer.Add(SlotAt(0));
    writer.Add(SlotAt(300));
    EXPECT_EQ(writer.Erase(WriterMidnight(), 300, 0).forgotten, 1);
    writer.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(0));
}

TEST(DayWriterTest, Save_DiskIsFull_LosesAndDoublesNothing)
{
    const TempFolder folder;
    const SmallDisk disk(folder.Path("disk"));
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "no disk can be mounted here";
    }
    DayWriter writer(folder.Path("disk"));
    writer.Add(SlotAt(0));
    writer.Save(60);
    std::string whole = HeadingLine + TextAt(0);
    disk.FillBut(0);
    for (std::int64_t start = 300; start <= 60 * 300; start += 300) {
        writer.Add(SlotAt(start));
        whole += TextAt(start);
    }
    EXPECT_THROW(writer.Save(60), Failure);
    EXPECT_THROW(writer.Save(60), Failure);
    EXPECT_TRUE(writer.HasUnsaved());
    disk.Empty();
    writer.Save(60);
    auto content = folder.Read(std::string("disk/") + DayName);
    EXPECT_EQ(DayWriter(folder.Path("disk")).SlotsOn(WriterMidnight()), 61);
    // Where the disk was full a line was cut off, and stands there once more as a whole.
    EXPECT_TRUE(content.ends_with(TextAt(60 * 300)));
    EXPECT_EQ(content.find(TextAt(60 * 300)), content.rfind(TextAt(60 * 300)));
}

TEST(DayWriterTest, Add_AFolderStandsInTheFilesPlace_Fails)
{
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path(DayName));
    DayWriter writer(folder.Path());
    EXPECT_THROW(writer.Add(SlotAt(0)), Failure);
}

TEST(DayWriterTest, Erase_LinesOfToday_AreGoneAndTheNextOneIsNew)
{
    const TempFolder folder;
    DayWriter writer(folder.Path());
    writer.Add(SlotAt(0));
    writer.Add(SlotAt(300, true));
    writer.Save(60);
    const auto erased = writer.Erase(WriterMidnight(), 300, 0);
    EXPECT_EQ(erased.forgotten, 1);
    writer.Add(SlotAt(300, true));
    writer.Save(60);
    EXPECT_EQ(folder.Read(DayName), HeadingLine + TextAt(0) + TextAt(300));
}

TEST(DayWriterTest, Erase_NoFile_ForgetsNothing)
{
    const TempFolder folder;
    EXPECT_EQ(DayWriter(folder.Path()).Erase(WriterMidnight(), 0, 0).forgotten, 0);
}

}

}
