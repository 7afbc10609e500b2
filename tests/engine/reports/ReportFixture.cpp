#include "engine/reports/ReportFixture.h"

namespace tempodial {

ReportFixture::ReportFixture()
{
    mReport->Initialize(mAddIn.main, mAddIn.application, mAddIn.main->mTempodialDebugLog);
}

ReportFixture::~ReportFixture() = default;

Date ReportFixture::Moment(int day, int hour, int minute)
{
    return Date::FromParts({ 2006, 10, day, hour, minute, 0 });
}

Date ReportFixture::Day(int day)
{
    return Moment(day, 0, 0);
}

void ReportFixture::Add(Date start, std::int32_t minutes, const std::string& project, const std::string& application,
    const std::string& description, const std::string& people)
{
    mAddIn.main->CreateCalendarItem(
        project, description, application, people, minutes, start, start.AddMinutes(minutes), "", false);
}

std::string ReportFixture::Plain(int from, int to, std::int32_t type, bool detailed, bool workDayOnly)
{
    mAddIn.Trace();
    return mReport->CreateReport(Day(from), Day(to), type, detailed, false, mCsvPath, true, workDayOnly);
}

std::string ReportFixture::Html(int day, std::int32_t type, bool detailed)
{
    mAddIn.Trace();
    return mReport->CreateReport(Day(day), Day(day), type, detailed, false, mCsvPath, false, false);
}

std::vector<std::string> ReportFixture::Csv(int from, int to)
{
    mAddIn.Trace();
    mReport->CreateReport(Day(from), Day(to), mReport->mProject, false, true, mCsvPath, true, false);
    return CsvLines();
}

std::vector<std::string> ReportFixture::CsvLines() const
{
    const auto name = mCsvPath.substr(mCsvPath.find_last_of("\\/") + 1);
    auto lines = Split(mAddIn.ReadFile(name), CrLf);
    if (!lines.empty() && lines.back().empty()) {
        lines.pop_back();
    }
    return lines;
}

void ReportFixture::UseInstallFolder(const std::string& folder)
{
    mAddIn.registry->Write(Hive::LocalMachine, R"(Software\Lindenfold\Tempodial)", "Install Directory", folder);
}

}
