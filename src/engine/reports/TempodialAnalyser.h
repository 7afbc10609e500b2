#pragma once

#include "base/Date.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TracedObject.h"
#include "platform/objectmodel/Application.h"

#include <cstdint>
#include <string>

namespace tempodial {

class ProgressBarForm;

/// Walks over past activities: gives projects to them, and finds one by a date.
class TempodialAnalyser final : public TracedObject
{
public:
    explicit TempodialAnalyser(Ref<const Platform> platform);

    void Initialize(
        const Ref<TempodialMain>& main, const Ref<Application>& application, const Ref<TempodialDebugLog>& log);
    void Terminate();

    /// The first item whose date property of that name lies in that minute, nothing when there is none.
    Ref<AppointmentItem> ReturnMatchingItem(const std::string& param, Date paramDate);
    /// Gives the project to the items of today and the days before it that its rules match, as many days in all.
    void ApplyProject(const std::string& project, std::int32_t numDays);
    /// The same for the items that start on one day; true when the user cancelled.
    bool ApplyProjectForDay(const std::string& project, Date day, const Ref<ProgressBarForm>& progress);
    /// Gives the project to the selected activities, whatever its rules; those that have one keep it unless overridden.
    void SetProjectForSelectedItems(const std::string& project, bool override);
    /// The same for the items that start from one moment on, before another.
    void SetProjectForRange(const std::string& project, Date fromdate, Date todate, bool override);
    /// The same for one item, unless it is open.
    void SetProjectForItem(const std::string& project, const Ref<AppointmentItem>& item, bool override);
    /// Fills the template of the daily page with the figures of one day, unescaped, and writes it into the data folder
    /// as "Analysis.html", which stays empty when there is no template. Stands ready: nothing calls it yet.
    void DisplayAnalysis(const std::string& day, const std::string& startTime, const std::string& endTime,
        const std::string& timeAtPC, const std::string& timeInMeetings, std::int32_t numTasks, const std::string& alert,
        const std::string& feedback);

private:
    Ref<TempodialMain> mMain;
    Ref<Application> mApplication;
};

}
