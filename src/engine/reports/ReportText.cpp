#include "engine/reports/ReportText.h"

#include "base/Number.h"
#include "base/Text.h"
#include "engine/foundation/TempodialStrings.h"

namespace tempodial {

namespace {

double Quotient(std::int32_t dividend, std::int32_t divisor)
{
    if (divisor == 0) {
        throw Failure(Error::DivisionByZero);
    }
    return double(dividend) / double(divisor);
}

}

ReportText::ReportText(Ref<const Platform> platform, Ref<TempodialDebugLog> log, Ref<TempodialStrings> strings)
    : TracedObject(platform)
    , mHtml(std::move(platform), log)
    , mStrings(std::move(strings))
{
    mLog = std::move(log);
    mTraceInfo = "TDReport";
}

std::string ReportText::ToTimeString(std::int32_t minutes)
{
    const auto attempt = Failing("ToTimeString ", LineShape::ColonText);
    mStage = "convert time";
    const auto hours = minutes / 60;
    const auto rest = minutes % 60;

    mStage = "make string";
    return attempt.Get([&] {
        return std::to_string(hours) + " " + (hours == 1 ? mStrings->mReportHour : mStrings->mReportHours) + " "
            + Padded(rest, 2) + " " + mStrings->mReportMinutes;
    });
}

void ReportText::BuildLine(std::int32_t total, std::string& lines, const std::string& text, std::int32_t minutes,
    const std::string& lineTemplate)
{
    const auto attempt = Failing("BuildLine ", LineShape::ColonText);
    if (minutes == 0) {
        return;
    }
    const auto content = attempt.Get([&] { return text + " - " + ToTimeString(minutes); });
    // Dividing first is what decides some of the halves: 23 of 40 is 57, not 58.
    const auto percent = attempt.Get([&] { return RoundHalfEven(Quotient(minutes, total) * 100); });
    auto line = attempt.Get([&] { return Replace(lineTemplate, "#CONTENT#", content); });
    attempt([&] { line = Replace(line, "#PERCENT#", std::to_string(percent)); });
    attempt([&] { lines.append(line).append(CrLf); });
}

std::string ReportText::BuildTail(std::int32_t total)
{
    const auto attempt = Failing("BuildTail ", LineShape::ColonText);
    return attempt.Get([&] {
        // kept: no blank behind the first stars.
        return "\r\n***" + mStrings->mReportTailInitString + ToTimeString(total) + " ***\r\n";
    });
}

std::string ReportText::BuildDetail(ReportData& data, bool html, const std::string& groupTemplate)
{
    const auto attempt = Failing("BuildDetail ", LineShape::ColonText);
    attempt.Say("build detail");

    std::size_t size = CrLf.size();
    for (const auto& group : data.groups) {
        if (!group.details.IsEmpty()) {
            size += group.details.Size() + group.name.size() + groupTemplate.size() + 2 * CrLf.size();
        }
    }
    std::string result;
    attempt([&] { result.reserve(size); });
    result += CrLf;

    for (const auto& group : data.groups) {
        if (group.details.IsEmpty()) {
            continue;
        }
        auto title = attempt.Get([&] { return group.name.empty() ? std::string("(None)") : group.name; });
        if (html) {
            attempt([&] { title = mHtml.HTMLEscape(title); });
        }
        const auto block = attempt.Get([&] { return Replace(groupTemplate, "#DETAILTITLE#", title); });
        attempt([&] {
            // Put together here, since the details of a group may be most of the report.
            result += CrLf;
            bool isFirst = true;
            for (const auto& piece : Split(block, "#DETAILLIST#")) {
                if (!isFirst) {
                    data.details.AppendTo(result, group.details);
                }
                isFirst = false;
                result += piece;
            }
            result += CrLf;
        });
    }
    data.details = ReportDetails();
    return result;
}

}
