#pragma once

#include "engine/foundation/TracedObject.h"

#include <cstdint>
#include <string>

namespace tempodial {

class TempodialCommonUtils;

/// The page in the data folder that shows the figures of one day.
class DailyAnalysisPage final : public TracedObject
{
public:
    DailyAnalysisPage(Ref<const Platform> platform, Ref<TempodialDebugLog> log, Ref<TempodialCommonUtils> commonUtils);

    /// Fills the page's template with the figures, unescaped, and writes it as "Analysis.html", which stays empty when
    /// there is no template.
    void DisplayAnalysis(const std::string& day, const std::string& startTime, const std::string& endTime,
        const std::string& timeAtPC, const std::string& timeInMeetings, std::int32_t numTasks, const std::string& alert,
        const std::string& feedback);

private:
    Ref<TempodialCommonUtils> mCommonUtils;
};

}
