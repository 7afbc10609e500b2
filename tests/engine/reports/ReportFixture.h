#pragma once

#include "base/Text.h"
#include "engine/reports/TempodialReport.h"
#include "support/AddInFixture.h"

#include <string>
#include <vector>

namespace tempodial {

/// The name of a test's case.
template <class Case> std::string NameOf(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

/// The add-in with a report generator and activities to report.
class ReportFixture : public AddInFixture
{
protected:
    ReportFixture() { mReport->Initialize(mAddIn.main, mAddIn.application, mAddIn.main->mTempodialDebugLog); }

    static Date Moment(int day, int hour, int minute) { return Date::FromParts({ 2006, 10, day, hour, minute, 0 }); }
    static Date Day(int day) { return Moment(day, 0, 0); }

    void Add(Date start, std::int32_t minutes, const std::string& project, const std::string& application,
        const std::string& description, const std::string& people = "")
    {
        mAddIn.main->CreateCalendarItem(
            project, description, application, people, minutes, start, start.AddMinutes(minutes), "", false);
    }

    /// A plain report over days of October 2006.
    std::string Plain(int from, int to, std::int32_t type, bool detailed = false, bool workDayOnly = false)
    {
        mAddIn.Trace();
        return mReport->CreateReport(Day(from), Day(to), type, detailed, false, mCsvPath, true, workDayOnly);
    }
    std::string Html(int day, std::int32_t type, bool detailed)
    {
        mAddIn.Trace();
        return mReport->CreateReport(Day(day), Day(day), type, detailed, false, mCsvPath, false, false);
    }
    /// The lines of the CSV file over days of October 2006.
    std::vector<std::string> Csv(int from, int to)
    {
        mAddIn.Trace();
        mReport->CreateReport(Day(from), Day(to), mReport->mProject, false, true, mCsvPath, true, false);
        return CsvLines();
    }
    std::vector<std::string> CsvLines() const
    {
        const auto name = mCsvPath.substr(mCsvPath.find_last_of("\\/") + 1);
        auto lines = Split(mAddIn.ReadFile(name), CrLf);
        if (!lines.empty() && lines.back().empty()) {
            lines.pop_back();
        }
        return lines;
    }
    void UseInstallFolder(const std::string& folder)
    {
        mAddIn.registry->Write(Hive::LocalMachine, R"(Software\Lindenfold\Tempodial)", "Install Directory", folder);
    }

    Ref<TempodialReport> mReport = MakeRef<TempodialReport>(mAddIn.platform);
    std::string mCsvPath;
};

}
