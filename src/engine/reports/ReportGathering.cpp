#include "engine/reports/ReportGathering.h"

#include "base/Concatenated.h"
#include "base/Number.h"
#include "base/Text.h"
#include "engine/foundation/TempodialStrings.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/MAPIFolder.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::int32_t LongestName = 35;
/// Bytes that a line about an activity seldom exceeds.
constexpr std::size_t UsualLine = 256;
/// What the first columns of the CSV file tell.
const std::array<std::string, 4> ColumnAttributes { "Project", "Type", "Description", "People" };
/// After so many days in a row without an activity events are let in, so that a cancel is heard among them too.
constexpr std::int32_t LongestSilence = 100;

std::int32_t Sum(std::int32_t a, std::int32_t b)
{
    const auto sum = std::int64_t(a) + b;
    if (sum > std::numeric_limits<std::int32_t>::max() || sum < std::numeric_limits<std::int32_t>::min()) {
        throw Failure(Error::Overflow);
    }
    return static_cast<std::int32_t>(sum);
}

}

ReportGathering::ReportGathering(
    Ref<const Platform> platform, Ref<TempodialMain> main, Ref<ProgressBarForm> progress, Request request)
    : TracedObject(platform)
    , mMain(std::move(main))
    , mProgress(std::move(progress))
    , mRequest(std::move(request))
    , mHtml(std::move(platform), mMain->mTempodialDebugLog)
    , mIndexOfName { { "", 0 } }
{
    mLog = mMain->mTempodialDebugLog;
    mTraceInfo = "TDReport";
}

bool ReportGathering::GetReportInfo(
    Date day, std::int32_t startTime, std::int32_t endTime, const std::string& heading, const std::string& text)
{
    const auto attempt = Failing("GetReportInfo ", LineShape::ColonText);
    const auto items = GetDayItems(day, startTime, endTime, attempt);

    mStage = "call initialize";
    attempt([&] {
        const auto& strings = *mMain->mStrings;
        mProgress->Initialise(
            strings.mLogName, heading, text + mPlatform->formats->LongDate(day), strings.mCancel, 40, true);
    });
    attempt([&] { mProgress->Show(); });

    const auto count = attempt.Get([&] { return items->Count(); });
    for (std::int32_t index = 1; index <= count; ++index) {
        GatherItem(attempt.Get([&] { return items->Item(index).As<AppointmentItem>(); }), attempt);
        if (IsStopped(index, attempt)) {
            return true;
        }
    }
    mSilentDays = count > 0 ? 0 : mSilentDays + 1;
    if (mSilentDays < LongestSilence) {
        return false;
    }
    mSilentDays = 0;
    return IsStopped(0, attempt);
}

bool ReportGathering::IsStopped(std::int32_t done, const Attempt& attempt)
{
    attempt([&] { mProgress->Update(done); });
    const bool hasAddInEnded = !mMain->mTempodialDebugLog;
    return hasAddInEnded || attempt.Get([&] { return mProgress->IsCancelled(); });
}

Ref<Items> ReportGathering::GetDayItems(Date day, std::int32_t startTime, std::int32_t endTime, const Attempt& attempt)
{
    auto& formats = *mPlatform->formats;
    const auto folder = attempt.Get([&] { return mMain->GetWorkLog(); });
    mStage = "format start";
    const auto dayText = attempt.Get([&] { return formats.ShortDate(day); });
    const auto startText = attempt.Get([&] { return dayText + " " + formats.ShortTime(Date().AddMinutes(startTime)); });
    // The last minute belongs to the day: 1440 gives 23:59.
    const auto endText
        = attempt.Get([&] { return dayText + " " + formats.ShortTime(Date().AddMinutes(std::int64_t(endTime) - 1)); });
    attempt.Say("start: " + startText + " end: " + endText);

    // kept: by overlap, so an item over midnight counts whole on each day that it touches.
    const auto filter = R"([End] > ")" + startText + R"(" and [Start] <= ")" + endText + R"(")";
    auto items = attempt.Get([&] { return folder->Items()->Restrict(filter); });
    attempt([&] { items->Sort("[Start]", false); });
    return items;
}

void ReportGathering::GatherItem(const Ref<AppointmentItem>& item, const Attempt& attempt)
{
    attempt([&] { mData.totalTime = Sum(mData.totalTime, item->Duration()); });
    if (mRequest.createCSVFile) {
        attempt([&] {
            const auto line = ToCSVLine(item);
            mRequest.csv->WriteLine(line);
        });
    }
    const auto name = GetGroupName(item, attempt);

    mStage = "go through reportAttributeArray";
    const auto index = FindGroup(name);
    if (index < mData.groups.size()) {
        auto& group = mData.groups[index];
        if (mRequest.detailed) {
            // kept: the line break also in front of the first line of the element that was there from the start.
            attempt([&] { mData.details.Append(group.details, Concatenated({ CrLf, ToDetailString(item) })); });
        }
        attempt([&] { group.minutes = Sum(group.minutes, item->Duration()); });
        return;
    }
    if (!attempt([&] { mData.groups.push_back({ name }); })) {
        return;
    }
    attempt([&] { mIndexOfName.emplace(name, index); });
    attempt([&] { mData.groups.back().minutes = item->Duration(); });
    if (mRequest.detailed) {
        attempt([&] { mData.details.Append(mData.groups.back().details, ToDetailString(item)); });
    }
}

std::string ReportGathering::GetGroupName(const Ref<AppointmentItem>& item, const Attempt& attempt)
{
    mStage = "call getattribute";
    auto name = attempt.Get([&] { return GetText(mRequest.attribute, item); });
    // A text never has more characters than bytes.
    if (name.size() > LongestName && Length(name) > LongestName) {
        attempt([&] { name = Left(name, LongestName) + "..."; });
    }
    if (mRequest.attribute == "Description") {
        const auto type = attempt.Get([&] { return GetText("Type", item); });
        if (!type.empty()) {
            attempt([&] { name = type + ", " + name; });
        }
    }
    if (mRequest.attribute == "Start") {
        attempt([&] { name = mPlatform->formats->LongDate(mPlatform->formats->Parse(name)); });
    }
    return name;
}

std::size_t ReportGathering::FindGroup(const std::string& name) const
{
    const auto found = mIndexOfName.find(name);
    return found == mIndexOfName.end() ? mData.groups.size() : found->second;
}

std::string ReportGathering::ToCSVLine(const Ref<AppointmentItem>& item)
{
    const auto attempt = Failing("ToCSVLine ", LineShape::ColonText);
    auto& formats = *mPlatform->formats;
    std::string line;
    line.reserve(UsualLine);
    for (const auto& attribute : ColumnAttributes) {
        line += attempt.Get([&] { return ToCSV(GetText(attribute, item)); });
        line += ',';
    }
    const auto day = attempt.Get([&] { return formats.LongDate(item->Start()); });
    const auto start = attempt.Get([&] { return formats.ShortTime(item->Start()); });
    const auto end = attempt.Get([&] { return formats.ShortTime(item->End()); });
    for (const auto& text : { ToCSV(day), ToCSV(start), ToCSV(end) }) {
        line += text;
        line += ',';
    }
    attempt([&] { line += GetText("Duration", item); });
    attempt.Say(Concatenated({ "ToCSVLine: ", line }));
    return line;
}

std::string ReportGathering::ToCSV(const std::string& text)
{
    const auto attempt = Failing("ToCSV ", LineShape::ColonText);
    // kept: quotes aren't doubled, and a line break stays in the field.
    return attempt.Get([&] {
        auto field = Concatenated({ "\"", text, "\"" });
        if (text.find('"') != std::string::npos) {
            std::replace(field.begin() + 1, field.end() - 1, '"', '\'');
        }
        return field;
    });
}

std::string ReportGathering::ToDetailString(const Ref<AppointmentItem>& item)
{
    const auto attempt = Failing("ToDetailString ", LineShape::ColonText);
    auto& formats = *mPlatform->formats;
    const std::string_view two = mRequest.html ? "&nbsp;&nbsp;" : "  ";

    std::string line;
    line.reserve(UsualLine);
    if (mRequest.attribute != "Start") {
        attempt([&] { line.append(formats.MediumDate(item->Start())).append(two); });
    }
    auto text = GetDetailText(item, attempt);
    if (mRequest.html) {
        attempt([&] { text = mHtml.HTMLEscape(text); });
    }
    attempt([&] {
        line += Concatenated({ formats.ShortTime(item->Start()), " - ", formats.ShortTime(item->End()), two, "(",
            Padded(mMain->GetAttribute("Duration", item).ToInt32(), 2), " ", mMain->mStrings->mReportMins, ")", two,
            two, text });
    });
    if (mRequest.html) {
        line += "<br>";
    }
    attempt.Say(Concatenated({ "ToDetailString: ", line }));
    return line;
}

std::string ReportGathering::GetDetailText(const Ref<AppointmentItem>& item, const Attempt& attempt)
{
    if (mRequest.attribute == "Type") {
        const auto project = attempt.Get([&] { return GetText("Project", item); });
        const auto description = attempt.Get([&] { return GetText("Description", item); });
        const bool hasProject = !project.empty() && project != mMain->mStrings->mNoProject;
        return hasProject ? Concatenated({ "[", project, "] ", description }) : description;
    }
    if (mRequest.attribute == "Project") {
        const auto type = attempt.Get([&] { return GetText("Type", item); });
        const auto description = attempt.Get([&] { return GetText("Description", item); });
        return type.empty() ? description : type + ", " + description;
    }
    return attempt.Get([&] { return item->Subject(); });
}

std::string ReportGathering::GetText(const std::string& attribute, const Ref<AppointmentItem>& item) const
{
    const auto value = mMain->GetAttribute(attribute, item);
    const auto* date = value.If<Date>();
    return date ? mPlatform->formats->General(*date) : value.ToText();
}

}
