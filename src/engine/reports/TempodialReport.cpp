#include "engine/reports/TempodialReport.h"

#include "base/Text.h"
#include "engine/dialogs/ProgressBarForm.h"
#include "engine/foundation/ReportTypes.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/reports/HtmlText.h"
#include "engine/reports/ReportText.h"

namespace tempodial {

namespace {

constexpr auto PlainLineTemplate = "#CONTENT# (#PERCENT#%)";
/// What closes the document of an HTML report.
constexpr std::string_view Ending = "</body></html>";

}

TempodialReport::TempodialReport(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialReport::Initialize(
    const Ref<TempodialMain>& main, const Ref<Application>& /*application*/, const Ref<TempodialDebugLog>& log)
{
    mTraceInfo = "TDReport";
    mMain = main;
    mLog = log;
    mProject = ReportTypes::Project;
    mApplication = ReportTypes::Application;
    mDescription = ReportTypes::Description;
    mDate = ReportTypes::Date;
    Trace("revision 1 TempodialReport");
}

void TempodialReport::Terminate()
{
    mMain = nullptr;
    mLog = nullptr;
}

std::string TempodialReport::CreateReport(Date startDate, Date endDate, std::int32_t reportType, bool detailed,
    bool createCSVFile, std::string& csvFilePath, bool textReport, bool workDayOnly)
{
    const auto attempt = Failing("CreateReport ", LineShape::ColonText);
    // The progress form lets events in, and they may end the add-in.
    const auto self = shared_from_this();
    mStage = "looping through days";
    const auto progress = attempt.Get([&] { return MakeRef<ProgressBarForm>(mPlatform); });
    attempt.Say([&] {
        auto& formats = *mPlatform->formats;
        return "generate report on [" + formats.General(startDate) + "," + formats.General(endDate) + "]";
    });
    const auto csv = createCSVFile ? OpenCSVFile(startDate, endDate, csvFilePath, attempt) : Ref<TextStream>();
    const auto [attribute, label] = GetGrouping(reportType);

    auto data = GatherDays(ReportGathering(mPlatform, mMain, progress,
                               { .attribute = attribute,
                                   .detailed = detailed,
                                   .html = !textReport,
                                   .createCSVFile = createCSVFile,
                                   .csv = csv }),
        startDate, endDate, workDayOnly, attempt);
    if (createCSVFile) {
        attempt([&] { csv->Close(); });
    }

    std::string report;
    mHasText = false;
    if (data) {
        report = textReport ? BuildPlainReport(*data, detailed, attempt)
                            : BuildHTMLReport(*data, detailed, label, attempt);
    }
    attempt([&] { progress->Unload(); });
    return report;
}

std::string TempodialReport::BuildHeader(Date startDate, Date endDate, std::int32_t reportType)
{
    const auto attempt = Failing("BuildHeader ", LineShape::ColonText);
    const auto dateText = attempt.Get([&] { return GetDateText(startDate, endDate); });
    const auto criteria = attempt.Get([&] {
        const auto label = GetGrouping(reportType).label;
        return label.empty() ? std::string() : "(" + mMain->mStrings->mReportBy + " " + label + ") ";
    });
    return attempt.Get([&] { return mMain->mStrings->mReportText + " " + criteria + dateText; });
}

TempodialReport::Grouping TempodialReport::GetGrouping(std::int32_t reportType) const
{
    const auto& strings = *mMain->mStrings;
    if (reportType == mProject) {
        return { "Project", strings.mReportProject };
    }
    if (reportType == mApplication) {
        return { "Type", strings.mReportApplication };
    }
    if (reportType == mDescription) {
        return { "Description", strings.mReportDescription };
    }
    if (reportType == mDate) {
        return { "Start", strings.mReportDate };
    }
    return {};
}

std::string TempodialReport::GetDateText(Date startDate, Date endDate) const
{
    auto& formats = *mPlatform->formats;
    auto text = formats.LongDate(startDate);
    return startDate == endDate ? text : text + " - " + formats.LongDate(endDate);
}

Ref<TextStream> TempodialReport::OpenCSVFile(
    Date startDate, Date endDate, std::string& csvFilePath, const Attempt& attempt)
{
    auto& files = *mPlatform->fileSystem;
    const auto dateText = attempt.Get([&] { return GetDateText(startDate, endDate); });
    attempt([&] {
        csvFilePath = files.BuildPath(mMain->mCommonUtils->GetDataFolderName(), "Tempodial " + dateText + ".csv");
    });
    attempt.Say("csv file: " + csvFilePath);
    auto csv = attempt.Get([&] { return files.OpenTextFile(csvFilePath, OpenMode::Writing, true); });
    attempt([&] { csv->WriteLine(mMain->mStrings->mReportCSVHeader); });
    return csv;
}

std::optional<ReportData> TempodialReport::GatherDays(
    ReportGathering gathering, Date startDate, Date endDate, bool workDayOnly, const Attempt& attempt)
{
    constexpr std::int32_t Sunday = 128;
    auto& formats = *mPlatform->formats;
    std::int32_t startTime = 0;
    std::int32_t endTime = 1440;
    std::int32_t daymask = 0;
    if (workDayOnly) {
        attempt([&] { mMain->mUtils->GetWorkDay(startTime, endTime, daymask); });
        attempt.Say("restrict to times [" + std::to_string(startTime) + "," + std::to_string(endTime) + ") on days "
            + std::to_string(daymask));
    }

    mStage = "looping through, by day";
    const auto heading = attempt.Get([&] { return mMain->mStrings->mReportProgress1; });
    const auto text = attempt.Get([&] { return mMain->mStrings->mReportProgress2; });
    const std::int64_t steps = attempt.Get([&] { return DaysBetween(startDate, endDate); });
    for (std::int64_t step = 0; step <= steps; ++step) {
        const auto day = startDate.AddDays(step);
        if (workDayOnly && (daymask & (Sunday >> (day.Weekday() - 1))) == 0) {
            attempt.Say([&] { return "skipping " + formats.General(day) + " as it looks to be non-working day"; });
            continue;
        }
        const bool isCancelled = gathering.GetReportInfo(day, startTime, endTime, heading, text);
        const bool hasAddInEnded = !mMain;
        if (hasAddInEnded) {
            return std::nullopt;
        }
        attempt.Say("new totaltime: " + std::to_string(gathering.mData.totalTime));
        if (isCancelled) {
            return std::nullopt;
        }
    }
    return std::move(gathering.mData);
}

std::string TempodialReport::BuildPlainReport(ReportData& data, bool detailed, const Attempt& attempt)
{
    ReportText texts(mPlatform, mLog, mMain->mStrings);
    std::string report;
    for (const auto& group : data.groups) {
        attempt([&] { texts.BuildLine(data.totalTime, report, group.name, group.minutes, PlainLineTemplate); });
    }
    attempt([&] { report += texts.BuildTail(data.totalTime); });
    if (detailed) {
        const auto groupTemplate
            = "#DETAILTITLE# " + mMain->mStrings->mReportActivityList + std::string(CrLf) + "#DETAILLIST#";
        attempt([&] { report += texts.BuildDetail(data, false, groupTemplate); });
    }
    attempt.Say([&] { return "Report: " + report; });
    mHasText = !report.empty();
    return report;
}

std::string TempodialReport::BuildHTMLReport(
    ReportData& data, bool detailed, const std::string& label, const Attempt& attempt)
{
    mStage = "html report";
    const auto readText = [&](const std::string& fileName, std::string_view readWords) {
        return ReadTemplate(fileName, readWords, attempt).value_or("");
    };
    const auto header = readText("ReportHeaderTemplate.html", "read header contents");
    auto summary = readText("ReportSummaryTemplate.html", "read summary contents");
    auto details = readText("ReportDetailsTemplate.html", "read detail contents");
    const auto detailLine = readText("ReportDetailLineTemplate.html", "read detail contents");
    auto line = ReadTemplate("ReportLineTemplate.html", "read line contents", attempt);
    if (!line) {
        line = PlainLineTemplate;
        attempt.Say("default to plain per-line contents");
    }

    ReportText texts(mPlatform, mLog, mMain->mStrings);
    HtmlText html(mPlatform, mLog);
    std::string lines;
    for (auto& group : data.groups) {
        attempt([&] { html.HTMLEscape(group.name); });
        attempt([&] { texts.BuildLine(data.totalTime, lines, group.name, group.minutes, *line); });
    }
    const auto rows = std::to_string(data.groups.size() + 1); // kept: two more than the highest index
    attempt([&] { summary = Replace(summary, "#CRITERIA#", label); });
    attempt([&] { summary = Replace(summary, "#SUMMARY#", html.HTMLMogrify(std::move(lines))); });
    attempt([&] { summary = Replace(summary, "#NUMROWS#", rows); });
    attempt([&] { summary = Replace(summary, "#TOTALTIME#", texts.ToTimeString(data.totalTime)); });

    auto report = header + summary;
    summary = std::string(); // it may be long, and must not be held twice
    if (detailed) {
        attempt.Say("set details");
        attempt([&] { details = Replace(details, "#CRITERIA#", label); });
        attempt([&] { details = Replace(details, "#DETAILS#", texts.BuildDetail(data, true, detailLine)); });
        attempt([&] { details = html.HTMLMogrify(std::move(details)); });
        // Room for all of it at once: a report that grew piece by piece would be held twice and more.
        attempt([&] { report.reserve(report.size() + details.size() + Ending.size()); });
        attempt([&] { report += details; });
    }
    mHasText = !report.empty();
    report += Ending;
    return report;
}

std::optional<std::string> TempodialReport::ReadTemplate(
    const std::string& fileName, std::string_view readWords, const Attempt& attempt) const
{
    const auto stream = attempt.Get([&] {
        return mPlatform->fileSystem->OpenTextFile(
            mMain->mUtils->GetPathToInstallFile(fileName), OpenMode::Reading, false);
    });
    if (!stream) {
        return std::nullopt;
    }
    auto text = attempt.Get([&] { return stream->ReadAll(); });
    attempt.Say(readWords);
    attempt([&] { stream->Close(); });
    return text;
}

}
