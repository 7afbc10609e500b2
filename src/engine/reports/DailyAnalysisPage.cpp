#include "engine/reports/DailyAnalysisPage.h"

#include "base/Text.h"
#include "engine/foundation/TempodialCommonUtils.h"

#include <string_view>
#include <utility>

namespace tempodial {

DailyAnalysisPage::DailyAnalysisPage(
    Ref<const Platform> platform, Ref<TempodialDebugLog> log, Ref<TempodialCommonUtils> commonUtils)
    : TracedObject(std::move(platform))
    , mCommonUtils(std::move(commonUtils))
{
    mLog = std::move(log);
    mTraceInfo = "TDAnalyser";
}

void DailyAnalysisPage::DisplayAnalysis(const std::string& day, const std::string& startTime,
    const std::string& endTime, const std::string& timeAtPC, const std::string& timeInMeetings, std::int32_t numTasks,
    const std::string& alert, const std::string& feedback)
{
    const auto attempt = Failing("Display", LineShape::ColonText);
    mStage = "OpenDataFile";
    attempt([&] { Trace("display data"); });

    std::string page;
    const auto source
        = attempt.Get([&] { return mCommonUtils->OpenDataFile("analysistemplate.html", false, OpenMode::Reading); });
    if (source) {
        attempt([&] { page = source->ReadAll(); });
        attempt([&] { Trace("read contents"); });
        const std::pair<std::string_view, std::string> figures[] = {
            { "#DAY#", day },
            { "#STARTTIME#", startTime },
            { "#ENDTIME#", endTime },
            { "#TIMEATPC#", timeAtPC },
            { "#TIMEINMEETINGS#", timeInMeetings },
            { "#NUMTASKS#", std::to_string(numTasks) },
            { "#ALERT1#", alert },
            { "#FEEDBACK1#", feedback },
        };
        for (const auto& [token, value] : figures) {
            attempt([&, &token = token, &value = value] { page = Replace(page, token, value); });
        }
        attempt([&] { source->Close(); });
    }

    const auto target
        = attempt.Get([&] { return mCommonUtils->OpenDataFile("Analysis.html", true, OpenMode::Writing); });
    attempt([&] { target->Write(page); });
    attempt([&] { target->Close(); });
}

}
