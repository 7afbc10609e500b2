#pragma once

#include "base/Text.h"
#include "engine/reports/TempodialReport.h"
#include "support/AddInFixture.h"

#include <string>
#include <vector>

namespace tempodial {

/// The first line of the table that a report has as a file.
inline constexpr auto CsvHeader = "Project,Application,Description,People,Day,Start time,End time,Duration (minutes)";

/// The name of a test's case.
template <class Case> std::string NameOf(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

/// The add-in with a report generator and activities to report.
class ReportFixture : public AddInFixture
{
protected:
    ReportFixture();
    ~ReportFixture() override;

    static Date Moment(int day, int hour, int minute);
    static Date Day(int day);

    void Add(Date start, std::int32_t minutes, const std::string& project, const std::string& application,
        const std::string& description, const std::string& people = "");

    /// A plain report over days of October 2006.
    std::string Plain(int from, int to, std::int32_t type, bool detailed = false, bool workDayOnly = false);
    std::string Html(int day, std::int32_t type, bool detailed);
    /// The lines of the CSV file over days of October 2006.
    std::vector<std::string> Csv(int from, int to);
    std::vector<std::string> CsvLines() const;
    void UseInstallFolder(const std::string& folder);

    Ref<TempodialReport> mReport = MakeRef<TempodialReport>(mAddIn.platform);
    std::string mCsvPath;
};

}
