#include "engine/foundation/TempodialUtils.h"

#include "engine/core/ProductWords.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "forms/ComboBoxModel.h"
#include "support/AddInFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto CalendarKey = R"(Software\Microsoft\Office\16.0\Outlook\Options\Calendar)";

/// A data folder with files of any age, of which it notes those that are deleted.
class AgedFiles : public TestFileSystem
{
public:
    using TestFileSystem::TestFileSystem;

    std::vector<File> files;
    std::vector<std::string> deleted;

    bool fails = false;

    Folder GetFolder(const std::string& path) override
    {
        if (fails) {
            throw Failure(Error::PermissionDenied);
        }
        return { path, files };
    }
    void DeleteFile(const std::string& path, bool force) override
    {
        EXPECT_FALSE(force);
        if (path == "read-only") {
            throw Failure(Error::PermissionDenied);
        }
        deleted.push_back(path);
    }
};

}

class TempodialUtilsTest : public AddInFixture
{
protected:
    TempodialUtils& Utils() { return *mAddIn.main->mUtils; }

    Ref<ComboBoxModel> Combo(const char* name) { return mForm->Control(name).As<ComboBoxModel>(); }
    /// Fills the boxes; an index selects in the list of months, the text stands for none.
    Date Get(const char* year, int monthIndex, const char* month, const char* day)
    {
        Combo("Year")->SetText(year);
        Combo("Day")->SetText(day);
        if (monthIndex >= 0) {
            Combo("Month")->Choose(monthIndex);
        } else {
            Combo("Month")->SetText(month);
        }
        return Utils().DateSelectorGet(Combo("Year"), Combo("Month"), Combo("Day"));
    }
    void Fill() { Utils().DateSelectorInit(Combo("Year"), Combo("Month"), Combo("Day")); }
    std::string TextValue(const std::string& line, const char* path)
    {
        return Utils().GetTextValue(Parsed(line), path);
    }
    Variant Time(const std::string& text)
    {
        return Utils().GetTimeFromXML(Date::FromYearMonthDay(2006, 10, 10),
            Parsed("<slot><EndTime>" + text + "</EndTime></slot>"), "slot/EndTime");
    }
    Ref<XmlDocument> Parsed(const std::string& line)
    {
        auto document = mAddIn.platform->xml->NewDocument();
        document->LoadXML(line);
        return document;
    }

    Ref<Form> mForm = [this] {
        auto form = mAddIn.forms->Create({ "DateForm", "Dates",
            { { { "Year", ControlKind::ComboBox, "" }, { "Month", ControlKind::ComboBox, "" },
                { "Day", ControlKind::ComboBox, "" } } } });
        form->Show();
        return form;
    }();
};

TEST_F(TempodialUtilsTest, GetRegistryValue_EmptyKey_IsTheProductsOwn)
{
    mAddIn.registry->Write(Hive::CurrentUser, ProductKey, "Any", "text");
    mAddIn.registry->Write(Hive::CurrentUser, "Other", "Any", "other");
    EXPECT_EQ(Utils().GetRegistryValue("Any", "", Hive::CurrentUser, RegistryAccess::All), Variant("text"));
    EXPECT_EQ(Utils().GetRegistryValue("Any", "Other", Hive::CurrentUser, RegistryAccess::All), Variant("other"));
    EXPECT_EQ(Utils().GetRegistryValue("Any", "", Hive::LocalMachine, RegistryAccess::Query), Variant(""));
    EXPECT_EQ(mAddIn.main->mUtils->mTraceInfo, "TDUtils");
}

TEST_F(TempodialUtilsTest, SetRegistryValue_TracesAndTrims)
{
    Utils().SetRegistryValue("Any", " a ", "", Hive::CurrentUser);
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("TDUtils SetRegistryValue: Any to  a "));
    EXPECT_EQ(mAddIn.registry->Get(Hive::CurrentUser, ProductKey, "Any"), Variant("a"));
    Utils().SetRegistryValue("Any", "", "", Hive::CurrentUser);
    EXPECT_EQ(Utils().GetRegistryValue("Any", "", Hive::CurrentUser, RegistryAccess::All), Variant(""));
}

TEST_F(TempodialUtilsTest, SetBoolRegistryValue_WritesTheWord)
{
    Utils().SetBoolRegistryValue("Any", true, "", Hive::CurrentUser);
    EXPECT_EQ(mAddIn.registry->Get(Hive::CurrentUser, ProductKey, "Any"), Variant("true"));
    Utils().SetBoolRegistryValue("Any", false, "", Hive::CurrentUser);
    EXPECT_EQ(mAddIn.registry->Get(Hive::CurrentUser, ProductKey, "Any"), Variant("false"));
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre("TDUtils SetBoolRegistryValue: Any to True", "TDUtils SetBoolRegistryValue: Any to False"));
}

TEST_F(TempodialUtilsTest, GetBoolRegistryValue_OtherThanTheTwoWords_IsTheDefault)
{
    const auto value
        = [&](bool otherwise) { return Utils().GetBoolRegistryValue(otherwise, "Any", "", Hive::CurrentUser); };
    for (const bool otherwise : { true, false }) {
        for (const auto* const text : { "True", "FALSE", "1", "" }) {
            mAddIn.registry->Write(Hive::CurrentUser, ProductKey, "Any", text);
            EXPECT_EQ(value(otherwise), otherwise) << text;
        }
        mAddIn.registry->WriteNumber(Hive::CurrentUser, ProductKey, "Any", 1);
        EXPECT_EQ(value(otherwise), otherwise);
        mAddIn.registry->Write(Hive::CurrentUser, ProductKey, "Any", "true");
        EXPECT_TRUE(value(otherwise));
        mAddIn.registry->Write(Hive::CurrentUser, ProductKey, "Any", "false");
        EXPECT_FALSE(value(otherwise));
        mAddIn.registry->Delete(Hive::CurrentUser, ProductKey, "Any");
        EXPECT_EQ(value(otherwise), otherwise);
    }
}

TEST_F(TempodialUtilsTest, GetInstallFolderName_IsReadEachTime)
{
    mAddIn.registry->Write(Hive::LocalMachine, ProductKey, "Install Directory", "/one");
    EXPECT_EQ(Utils().GetInstallFolderName(), "/one");
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("TDUtils Install folder: /one"));
    mAddIn.registry->Write(Hive::LocalMachine, ProductKey, "Install Directory", "/two");
    EXPECT_EQ(Utils().GetPathToInstallFile("a.bmp"), "/two/a.bmp");
    EXPECT_EQ(Utils().GetPathToUserGuideFile("FAQ.html"), mAddIn.files->BuildPath("/two\\\\userguide", "FAQ.html"));
    EXPECT_THAT(Utils().GetPathToUserGuideFile("FAQ.html"), testing::StartsWith("/two\\\\userguide"));
}

TEST_F(TempodialUtilsTest, GetInstallFolderName_NotInTheRegistry_IsEmptyAndPathsAreBareNames)
{
    mAddIn.registry->Delete(Hive::LocalMachine, ProductKey, "Install Directory");
    EXPECT_EQ(Utils().GetInstallFolderName(), "");
    EXPECT_EQ(Utils().GetPathToInstallFile("a.bmp"), "a.bmp");
}

TEST_F(TempodialUtilsTest, GetTextValue_AbsentIsNoneAndEmptyIsEmpty)
{
    EXPECT_EQ(TextValue("<slot><a>text</a></slot>", "slot/a"), "text");
    EXPECT_EQ(TextValue("<slot><a></a></slot>", "slot/a"), "");
    EXPECT_EQ(TextValue("<slot/>", "slot/a"), "None");
    EXPECT_EQ(TextValue("<slot><A>text</A></slot>", "slot/a"), "None");
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
}

TEST_F(TempodialUtilsTest, GetTextValue_NoNode_IsEmptyWithALine)
{
    EXPECT_EQ(Utils().GetTextValue(nullptr, "slot/a"), "");
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre(
            "TDUtils GetTextValue error Object variable or With block variable not set SelectSingleNode slot/a"));
}

TEST_F(TempodialUtilsTest, GetTimeFromXML_AddsSecondsToTheDay)
{
    const std::pair<const char*, Date> rows[] = {
        { "3600", Date::FromParts({ 2006, 10, 10, 1, 0, 0 }) },
        { "86400", Date::FromParts({ 2006, 10, 11, 0, 0, 0 }) },
        { " 36300 ", Date::FromParts({ 2006, 10, 10, 10, 5, 0 }) },
        { "3600.5", Date::FromParts({ 2006, 10, 10, 1, 0, 0 }) },
        { "3601.5", Date::FromParts({ 2006, 10, 10, 1, 0, 2 }) },
        { "-60", Date::FromParts({ 2006, 10, 9, 23, 59, 0 }) },
    };
    for (const auto& [text, moment] : rows) {
        EXPECT_EQ(Time(text), Variant(moment)) << text;
    }
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
}

TEST_F(TempodialUtilsTest, GetTimeFromXML_NoNumber_StaysEmptyWithALine)
{
    const std::pair<const char*, const char*> rows[]
        = { { "None", "Type mismatch" }, { "", "Type mismatch" }, { "99999999999", "Overflow" } };
    for (const auto& [text, description] : rows) {
        EXPECT_TRUE(Time(text).IsEmpty()) << text;
        EXPECT_THAT(mAddIn.Trace(),
            ElementsAre(std::string("TDUtils GetGetFromXML error ") + description + " SelectSingleNode slot/EndTime"));
    }
    EXPECT_TRUE(Utils().GetTimeFromXML(Date(), Parsed("<slot/>"), "slot/EndTime").IsEmpty());
}

TEST_F(TempodialUtilsTest, GetWorkDay_EachValueStandsForItself)
{
    std::int32_t start = 0;
    std::int32_t end = 0;
    std::int32_t mask = 0;
    Utils().GetWorkDay(start, end, mask);
    EXPECT_EQ(std::tuple(start, end, mask), std::tuple(480, 1020, 124));

    mAddIn.registry->WriteNumber(Hive::CurrentUser, CalendarKey, "CalDefStart", 540);
    mAddIn.registry->Write(Hive::CurrentUser, CalendarKey, "CalDefEnd", "70000");
    Utils().GetWorkDay(start, end, mask);
    EXPECT_EQ(std::tuple(start, end, mask), std::tuple(540, 1020, 124));

    mAddIn.registry->Write(Hive::CurrentUser, CalendarKey, "CalDefEnd", "1080");
    mAddIn.registry->Write(Hive::CurrentUser, CalendarKey, "WorkDay", "");
    Utils().GetWorkDay(start, end, mask);
    EXPECT_EQ(std::tuple(start, end, mask), std::tuple(540, 1080, 124));

    mAddIn.registry->WriteNumber(Hive::CurrentUser, CalendarKey, "WorkDay", -1);
    Utils().GetWorkDay(start, end, mask);
    EXPECT_EQ(std::tuple(start, end, mask), std::tuple(540, 1080, -1));
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
}

TEST_F(TempodialUtilsTest, GetWorkDay_NoApplication_KeepsTheDefaultsSilently)
{
    mAddIn.registry->WriteNumber(Hive::CurrentUser, CalendarKey, "CalDefStart", 540);
    mAddIn.main->mApplication.Clear();
    std::int32_t start = 0;
    std::int32_t end = 0;
    std::int32_t mask = 0;
    Utils().GetWorkDay(start, end, mask);
    EXPECT_EQ(std::tuple(start, end, mask), std::tuple(480, 1020, 124));
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
}

TEST_F(TempodialUtilsTest, DateSelectorInit_FillsTheThreeLists)
{
    mAddIn.clock->Set(Date::FromYearMonthDay(2009, 3, 4));
    Fill();
    EXPECT_THAT(Combo("Year")->List(), ElementsAre("2006", "2007", "2008", "2009", "2010", "2011"));
    EXPECT_THAT(Combo("Month")->List(),
        ElementsAre("Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"));
    ASSERT_EQ(Combo("Day")->List().size(), 31);
    EXPECT_EQ(Combo("Day")->List().front(), "1");
    EXPECT_EQ(Combo("Day")->List().back(), "31");
}

TEST_F(TempodialUtilsTest, DateSelectorToday_SetsTextsWithoutASelection)
{
    Fill();
    Utils().DateSelectorToday(Combo("Year"), Combo("Month"), Combo("Day"));
    EXPECT_EQ(Combo("Year")->Text(), "2006");
    EXPECT_EQ(Combo("Month")->Text(), "Oct");
    EXPECT_EQ(Combo("Month")->ListIndex(), -1);
    EXPECT_EQ(Combo("Day")->Text(), "10");
    EXPECT_EQ(
        Utils().DateSelectorGet(Combo("Year"), Combo("Month"), Combo("Day")), Date::FromYearMonthDay(2006, 10, 10));
}

TEST_F(TempodialUtilsTest, DateSelectorGet_RollsOverAndFindsMonthsByTheirText)
{
    struct Row
    {
        const char* year;
        int monthIndex;
        const char* month;
        const char* day;
        Date date;
    };
    Fill();
    const Row rows[] = {
        { "2006", 9, "", "10", Date::FromYearMonthDay(2006, 10, 10) },
        { "2006", -1, "Oct", "10", Date::FromYearMonthDay(2006, 10, 10) },
        { "2006", -1, "oct", "10", Date::FromYearMonthDay(2005, 12, 10) },
        { "2006", -1, "October", "10", Date::FromYearMonthDay(2005, 12, 10) },
        { "2006", 1, "", "31", Date::FromYearMonthDay(2006, 3, 3) },
        { "2008", 1, "", "31", Date::FromYearMonthDay(2008, 3, 2) },
        { "2006", 3, "", "31", Date::FromYearMonthDay(2006, 5, 1) },
        { "06", 9, "", "10", Date::FromYearMonthDay(2006, 10, 10) },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Get(row.year, row.monthIndex, row.month, row.day), row.date)
            << row.year << " " << row.monthIndex << row.month << " " << row.day;
    }
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
}

TEST_F(TempodialUtilsTest, DateSelectorGet_NoNumber_IsTheZeroDateWithALine)
{
    Fill();
    EXPECT_EQ(Get("abc", 9, "", "10"), Date());
    EXPECT_EQ(Get("2006", 9, "", ""), Date());
    const auto lines = mAddIn.Trace();
    ASSERT_EQ(lines.size(), 2);
    for (const auto& line : lines) {
        EXPECT_THAT(line, testing::StartsWith("TDUtils DateSelectorToday error Type mismatch "));
    }
}

TEST_F(TempodialUtilsTest, DateSelector_NoControl_CostsALineAndNoMore)
{
    Utils().DateSelectorInit(Combo("Year"), nullptr, Combo("Day"));
    EXPECT_EQ(Combo("Day")->List().size(), 31);
    const auto lines = mAddIn.Trace();
    EXPECT_EQ(lines.size(), 12);
    EXPECT_THAT(lines.front(),
        testing::StartsWith("TDUtils DateSelectorInit error Object variable or With block variable not set "));
}

TEST_F(TempodialUtilsTest, CleanUpOldFiles_DeletesTrackerFilesFromBeforeTheCutOff)
{
    const auto files = MakeRef<AgedFiles>(mFolder.Path());
    const auto made = [](int month, int day, int hour, int minute) {
        return Date::FromParts({ 2006, month, day, hour, minute, 0 });
    };
    files->files = {
        { "tracker_granules20061010.out", "kept", 1, made(10, 10, 0, 1) },
        { "tracker_granules(done)20061009.out", "deleted", 1, made(10, 9, 23, 59) },
        { "tracker_granules20060101.out", "read-only", 1, made(1, 1, 0, 0) },
        { "Tracker_x", "other case", 1, made(1, 1, 0, 0) },
        { "TempodialHistory.out", "history", 1, made(1, 1, 0, 0) },
        { "my tracker_log", "inside", 1, made(1, 1, 0, 0) },
    };
    mAddIn.platform->fileSystem = files;
    mAddIn.clock->Set(made(10, 31, 9, 0));
    mAddIn.main->mCommonUtils->Initialize(mAddIn.main->mTempodialDebugLog, "Tempodial", "16.0");
    mAddIn.main->mUtils->Initialize(mAddIn.main->mTempodialDebugLog, mAddIn.main);
    Utils().CleanUpOldFiles();
    EXPECT_THAT(files->deleted, ElementsAre("deleted", "inside"));
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre("TDUtils old enough to delete", "TDUtils old enough to delete",
            "TDUtils Attachdiagsfiles error Permission denied Iterate", "TDUtils old enough to delete"));
}

TEST_F(TempodialUtilsTest, CleanUpOldFiles_FolderCanNotBeListed_CostsALine)
{
    const auto files = MakeRef<AgedFiles>(mFolder.Path());
    files->fails = true;
    mAddIn.platform->fileSystem = files;
    mAddIn.main->mCommonUtils->Initialize(mAddIn.main->mTempodialDebugLog, "Tempodial", "16.0");
    Utils().CleanUpOldFiles();
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre("TDUtils Attachdiagsfiles error Object variable or With block variable not set Iterate"));
}

TEST_F(TempodialUtilsTest, Terminate_TracesOnceAndLetsGo)
{
    const auto utils = mAddIn.main->mUtils;
    utils->Terminate();
    utils->Terminate();
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("TDUtils term inspector"));
}

}
