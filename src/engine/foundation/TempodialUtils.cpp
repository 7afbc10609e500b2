#include "engine/foundation/TempodialUtils.h"

#include "base/Number.h"
#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialWin32APICalls.h"

namespace tempodial {

namespace {

constexpr std::int32_t FirstYear = 2006;
constexpr std::int32_t Months = 12;

std::string KeyOrDefault(const std::string& key)
{
    return key.empty() ? TempodialWin32APICalls::DefaultKey : key;
}

}

TempodialUtils::TempodialUtils(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialUtils::Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main)
{
    mLog = applog;
    mMain = main;
    mTraceInfo = "TDUtils";
    mFileSystem = mPlatform->fileSystem;
}

void TempodialUtils::Terminate()
{
    const auto attempt = Failing("Term error ", LineShape::TextOnly);
    if (mLog) {
        attempt.Say("term inspector");
    }
    mMain = nullptr;
    mLog = nullptr;
    mFileSystem = nullptr;
}

Variant TempodialUtils::GetRegistryValue(
    const std::string& value, const std::string& key, Hive area, RegistryAccess access)
{
    const auto attempt = Failing("GetRegistryValue error ", LineShape::TextBlankStep);
    Variant result("");
    attempt([&] {
        result = TempodialWin32APICalls::ReadRegistryValue(*mPlatform, area, KeyOrDefault(key), value, access);
    });
    return result;
}

bool TempodialUtils::GetBoolRegistryValue(bool defValue, const std::string& value, const std::string& key, Hive area)
{
    const auto attempt = Failing("GetBoolRegistryValue error ", LineShape::TextBlankStep);
    const auto text = attempt.Get([&] {
        return TempodialWin32APICalls::ReadRegistryValue(
            *mPlatform, area, KeyOrDefault(key), value, RegistryAccess::All)
            .ToText();
    });
    if (text == "true") {
        return true;
    }
    return text == "false" ? false : defValue;
}

void TempodialUtils::SetRegistryValue(
    const std::string& value, const std::string& strvalue, const std::string& key, Hive area)
{
    const auto attempt = Failing("SetRegistryValue error ", LineShape::TextBlankStep);
    attempt.Say("SetRegistryValue: " + value + " to " + strvalue);
    attempt([&] { TempodialWin32APICalls::WriteRegistryValue(*mPlatform, area, KeyOrDefault(key), value, strvalue); });
}

void TempodialUtils::SetBoolRegistryValue(const std::string& value, bool strvalue, const std::string& key, Hive area)
{
    const auto attempt = Failing("SetBoolRegistryValue error ", LineShape::TextBlankStep);
    attempt.Say("SetBoolRegistryValue: " + value + " to " + std::string(BooleanText(strvalue)));
    attempt([&] {
        TempodialWin32APICalls::WriteRegistryValue(
            *mPlatform, area, KeyOrDefault(key), value, strvalue ? "true" : "false");
    });
}

std::string TempodialUtils::GetInstallFolderName()
{
    const auto attempt = Failing("GetInstallFolderName error ", LineShape::TextBlankStep);
    std::string folder;
    attempt([&] {
        folder = GetRegistryValue(mMain->mStrings->mRegistryValueInstall, "", Hive::LocalMachine, RegistryAccess::Query)
                     .ToText();
    });
    attempt.Say("Install folder: " + folder);
    return folder;
}

std::string TempodialUtils::GetPathToInstallFile(const std::string& filename)
{
    const auto attempt = Failing("GetPathToInstallFile error ", LineShape::TextBlankStep);
    return attempt.Get([&] { return mFileSystem->BuildPath(GetInstallFolderName(), filename); });
}

std::string TempodialUtils::GetPathToUserGuideFile(const std::string& filename)
{
    const auto attempt = Failing("GetPathToUserGuideFile error ", LineShape::TextBlankStep);
    // Both backslashes are kept: file systems take the two as one separator.
    return attempt.Get([&] { return mFileSystem->BuildPath(GetInstallFolderName() + R"(\\userguide)", filename); });
}

std::string TempodialUtils::GetTextValue(const Ref<XmlNode>& objXMLIn, std::string_view attrib)
{
    const auto attempt = Failing("GetTextValue error ", LineShape::TextBlankStep);
    std::string text;
    // The step word is put together in place, as this runs for each value of each line.
    mStage.assign("SelectSingleNode ").append(attrib);
    attempt([&] {
        const auto node = objXMLIn->SelectSingleNode(attrib);
        text = node ? node->Text() : mMain->mStrings->mUnknownString;
    });
    return text;
}

Variant TempodialUtils::GetTimeFromXML(Date dayDate, const Ref<XmlNode>& objXML, std::string_view xmlAttribute)
{
    const auto attempt = Failing("GetGetFromXML error ", LineShape::TextBlankStep);
    std::string text = "0";
    Variant result;
    attempt([&] { text = GetTextValue(objXML, xmlAttribute); });
    attempt([&] { result = dayDate.AddSeconds(ToInt32(text)); });
    return result;
}

void TempodialUtils::GetWorkDay(std::int32_t& startTime, std::int32_t& endTime, std::int32_t& daymask)
{
    startTime = 480;
    endTime = 1020;
    daymask = 124;

    const auto quiet = Failing("", LineShape::Silent);
    std::string key;
    const bool known = quiet([&] {
        key = R"(Software\Microsoft\Office\)" + std::to_string(MajorVersion(mMain->mApplication->Version()))
            + R"(.0\Outlook\Options\Calendar)";
    });
    if (!known) {
        return;
    }
    const auto read = [&](std::int32_t& target, const std::string& value) {
        quiet([&] { target = ToInt16(GetRegistryValue(value, key, Hive::CurrentUser, RegistryAccess::All).ToText()); });
    };
    read(startTime, "CalDefStart");
    read(endTime, "CalDefEnd");
    read(daymask, "WorkDay");
}

void TempodialUtils::DateSelectorInit(
    const Ref<ComboBox>& yearSelector, const Ref<ComboBox>& monthSelector, const Ref<ComboBox>& daySelector)
{
    const auto attempt = Failing("DateSelectorInit error ", LineShape::TextBlankStep);
    const auto lastYear = attempt.Get([&] { return mPlatform->clock->Now().ToParts().year + 2; });
    for (std::int32_t year = FirstYear; year <= lastYear; ++year) {
        attempt([&] { yearSelector->AddItem(std::to_string(year)); });
    }
    for (std::int32_t month = 1; month <= Months; ++month) {
        attempt([&] { monthSelector->AddItem(mPlatform->formats->MonthAbbreviation(month)); });
    }
    for (std::int32_t day = 1; day <= 31; ++day) {
        attempt([&] { daySelector->AddItem(std::to_string(day)); });
    }
}

void TempodialUtils::DateSelectorToday(
    const Ref<ComboBox>& yearSelector, const Ref<ComboBox>& monthSelector, const Ref<ComboBox>& daySelector)
{
    const auto attempt = Failing("DateSelectorToday error ", LineShape::TextBlankStep);
    attempt([&] { yearSelector->SetText(std::to_string(mPlatform->clock->Now().ToParts().year)); });
    attempt([&] {
        monthSelector->SetText(mPlatform->formats->MonthAbbreviation(mPlatform->clock->Now().ToParts().month));
    });
    attempt([&] { daySelector->SetText(std::to_string(mPlatform->clock->Now().ToParts().day)); });
}

Date TempodialUtils::DateSelectorGet(
    const Ref<ComboBox>& yearSelector, const Ref<ComboBox>& monthSelector, const Ref<ComboBox>& daySelector)
{
    // kept: the words are those of `DateSelectorToday`.
    const auto attempt = Failing("DateSelectorToday error ", LineShape::TextBlankStep);
    auto month = attempt.Get([&] { return monthSelector->ListIndex() + 1; });
    if (month < 1 || month > Months) {
        month = 0;
        for (std::int32_t known = 1; known <= Months; ++known) {
            if (attempt.Get([&] { return monthSelector->Text() == mPlatform->formats->MonthAbbreviation(known); })) {
                month = known;
            }
        }
    }
    return attempt.Get([&] { return Date::FromTexts(yearSelector->Text(), month, daySelector->Text()); });
}

void TempodialUtils::CleanUpOldFiles()
{
    const auto attempt = Failing("Attachdiagsfiles error ", LineShape::TextBlankStep);
    // kept: the step word is shared with the attaching of diagnostic files.
    mStage = "attach files";
    const auto folder = attempt.Get([&] { return mMain->mCommonUtils->GetDataFolder(); });
    Date cutOff;
    attempt([&] { cutOff = mPlatform->clock->Now().AddDays(-mMain->mConfig->mSavedDataDays); });
    mStage = "Iterate";
    for (const auto& file : attempt.Get([&] { return folder->files; })) {
        const auto isOld = attempt.Get([&] {
            return file.name.find("tracker_") != std::string::npos && DaysBetween(file.dateCreated, cutOff) > 0;
        });
        if (isOld) {
            attempt.Say("old enough to delete");
            attempt([&] { mFileSystem->DeleteFile(file.path, false); });
        }
    }
}

void TempodialUtils::AttachDiagsFiles(const Ref<MailItem>& item, Date day, bool all)
{
    const auto attempt = Failing("Attachdiagsfiles error ", LineShape::TextBlankStep);
    mStage = "attach files";
    const auto dayFile = day.DayKey() + ".out";
    mStage = "GDF";
    const auto folder = attempt.Get([&] { return mMain->mCommonUtils->GetDataFolder(); });
    mStage = "get files";
    for (const auto& file : attempt.Get([&] { return folder->files; })) {
        mStage = "Iterate";
        attempt.Say("file: " + file.name);
        const auto holds = [&](const char* word) { return InStrIgnoringCase(file.name, word) > 0; };
        const bool isWanted = holds("trace1") || holds("trace2") || holds("TDCaptureLog1") || holds("TDCaptureLog2")
            || (all && file.name.find(".out") != std::string::npos) || file.name.find(dayFile) != std::string::npos;
        if (isWanted) {
            mStage = "Buildpath";
            attempt([&] { item->Attachments()->Add(mFileSystem->BuildPath(folder->path, file.name)); });
        }
    }
}

}
