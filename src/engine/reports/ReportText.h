#pragma once

#include "engine/foundation/TracedObject.h"
#include "engine/reports/HtmlText.h"
#include "engine/reports/ReportData.h"

#include <cstdint>
#include <string>

namespace tempodial {

class TempodialStrings;

/// The pieces of text that a report is put together from, plain or HTML.
class ReportText final : public TracedObject
{
public:
    ReportText(Ref<const Platform> platform, Ref<TempodialDebugLog> log, Ref<TempodialStrings> strings);

    /// Minutes as hours and minutes, such as 1 hour 05 minutes.
    std::string ToTimeString(std::int32_t minutes);
    /// Appends the summary line of a group to the lines; a group of no minutes has none.
    void BuildLine(std::int32_t total, std::string& lines, const std::string& text, std::int32_t minutes,
        const std::string& lineTemplate);
    /// The closing line of a plain report.
    std::string BuildTail(std::int32_t total);
    /// The activity list of all groups that have details. The details are given up, since a long report must not be
    /// held twice.
    std::string BuildDetail(ReportData& data, bool html, const std::string& groupTemplate);

private:
    HtmlText mHtml;
    Ref<TempodialStrings> mStrings;
};

}
