#pragma once

#include "engine/core/TempodialMain.h"
#include "engine/dialogs/ProgressBarForm.h"
#include "engine/foundation/TracedObject.h"
#include "engine/reports/HtmlText.h"
#include "engine/reports/ReportData.h"
#include "platform/objectmodel/AppointmentItem.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace tempodial {

/// What one report gathers from the activities, day by day: groups, totals and lines of the CSV file. It has references
/// of its own, since the user may end the add-in while a report is under way.
class ReportGathering final : public TracedObject
{
public:
    /// What is gathered.
    struct Request
    {
        /// The attribute by which the activities are grouped.
        std::string attribute;
        /// Gather a line for each activity.
        bool detailed = false;
        bool html = false;
        /// Write a line for each activity to the CSV stream.
        bool createCSVFile = false;
        Ref<TextStream> csv;
    };

    ReportGathering(
        Ref<const Platform> platform, Ref<TempodialMain> main, Ref<ProgressBarForm> progress, Request request);

    /// What has been gathered so far.
    ReportData mData;

    /// Gathers the activities that overlap the working day of a day, given in minutes after midnight; true when the
    /// user cancelled or ended the add-in.
    bool GetReportInfo(
        Date day, std::int32_t startTime, std::int32_t endTime, const std::string& heading, const std::string& text);

private:
    /// Shows how many activities of the day are done and lets events in; true when the user cancelled or ended the
    /// add-in.
    bool IsStopped(std::int32_t done, const Attempt& attempt);
    Ref<Items> GetDayItems(Date day, std::int32_t startTime, std::int32_t endTime, const Attempt& attempt);
    void GatherItem(const Ref<AppointmentItem>& item, const Attempt& attempt);
    std::string GetGroupName(const Ref<AppointmentItem>& item, const Attempt& attempt);
    /// Index of the group of a name, the number of groups when there is none.
    std::size_t FindGroup(const std::string& name) const;
    std::string ToCSVLine(const Ref<AppointmentItem>& item);
    std::string ToCSV(const std::string& text);
    std::string ToDetailString(const Ref<AppointmentItem>& item);
    /// The part of a detail line that doesn't repeat what the group's name says.
    std::string GetDetailText(const Ref<AppointmentItem>& item, const Attempt& attempt);
    /// An attribute as text, a date in the general form.
    std::string GetText(const std::string& attribute, const Ref<AppointmentItem>& item) const;

    Ref<TempodialMain> mMain;
    Ref<ProgressBarForm> mProgress;
    Request mRequest;
    HtmlText mHtml;
    std::int32_t mSilentDays = 0;
    std::unordered_map<std::string, std::size_t> mIndexOfName;
};

}
