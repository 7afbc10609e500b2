#pragma once

#include "base/Date.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TracedObject.h"
#include "engine/reports/ReportGathering.h"
#include "platform/objectmodel/Application.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tempodial {

/// Turns the activities of a range of days into the text of a report, plain or HTML, and into a CSV file.
class TempodialReport final : public TracedObject, public std::enable_shared_from_this<TempodialReport>
{
public:
    explicit TempodialReport(Ref<const Platform> platform);

    /// The report types: what the activities are grouped by.
    std::int32_t mProject = 0;
    std::int32_t mApplication = 0;
    std::int32_t mDescription = 0;
    std::int32_t mDate = 0;

    void Initialize(
        const Ref<TempodialMain>& main, const Ref<Application>& application, const Ref<TempodialDebugLog>& log);
    /// Lets its references go.
    void Terminate();

    /// The text of a report over the days from start to end, both included, empty when the user cancels. With a CSV
    /// file, its path is put into the argument; the file stays, also after a cancel.
    std::string CreateReport(Date startDate, Date endDate, std::int32_t reportType, bool detailed, bool createCSVFile,
        std::string& csvFilePath, bool textReport, bool workDayOnly);
    /// True when the report that was created last has a text; one that was cancelled has none, nor has an HTML one
    /// without its templates.
    bool HasText() const { return mHasText; }
    /// The line that says what a report is about.
    std::string BuildHeader(Date startDate, Date endDate, std::int32_t reportType);

private:
    /// The attribute by which a type groups, and its label; both empty for an unknown type.
    struct Grouping
    {
        std::string attribute;
        std::string label;
    };

    Grouping GetGrouping(std::int32_t reportType) const;
    /// The long date of a day, or of both days of a range.
    std::string GetDateText(Date startDate, Date endDate) const;
    Ref<TextStream> OpenCSVFile(Date startDate, Date endDate, std::string& csvFilePath, const Attempt& attempt);
    /// Gathers what the days hold; nothing when the user cancelled.
    std::optional<ReportData> GatherDays(
        ReportGathering gathering, Date startDate, Date endDate, bool workDayOnly, const Attempt& attempt);
    std::string BuildPlainReport(ReportData& data, bool detailed, const Attempt& attempt);
    std::string BuildHTMLReport(ReportData& data, bool detailed, const std::string& label, const Attempt& attempt);
    /// The content of a template, nothing when it can't be opened.
    std::optional<std::string> ReadTemplate(
        const std::string& fileName, std::string_view readWords, const Attempt& attempt) const;

    Ref<TempodialMain> mMain;
    bool mHasText = false;
};

}
