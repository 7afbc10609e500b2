#pragma once

#include "base/Variant.h"
#include "engine/foundation/TracedObject.h"
#include "platform/controls/ComboBox.h"
#include "platform/objectmodel/MailItem.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

class TempodialMain;

/// Helpers that more than one part needs: registry values, install folder, values of XML nodes, working day, date
/// selector and the clean-up of tracker files. None passes a failure on.
class TempodialUtils final : public TracedObject
{
public:
    explicit TempodialUtils(Ref<const Platform> platform);

    void Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main);
    /// Lets its references go.
    void Terminate();

    /// A text or a number, the empty text when there is none; an empty key means the product's own.
    Variant GetRegistryValue(const std::string& value, const std::string& key, Hive area, RegistryAccess access);
    /// The value of "true" or "false", in exactly these letters, else the default; an empty key means the product's
    /// own.
    bool GetBoolRegistryValue(bool defValue, const std::string& value, const std::string& key, Hive area);
    void SetRegistryValue(const std::string& value, const std::string& strvalue, const std::string& key, Hive area);
    void SetBoolRegistryValue(const std::string& value, bool strvalue, const std::string& key, Hive area);

    /// The folder of templates, pictures and form, empty when the registry doesn't name it.
    std::string GetInstallFolderName();
    std::string GetPathToInstallFile(const std::string& filename);
    std::string GetPathToUserGuideFile(const std::string& filename);

    /// The text of a node on a path, "None" when there is no such node.
    std::string GetTextValue(const Ref<XmlNode>& objXMLIn, std::string_view attrib);
    /// The day plus the seconds that a node holds, nothing when it holds no number.
    Variant GetTimeFromXML(Date dayDate, const Ref<XmlNode>& objXML, std::string_view xmlAttribute);

    /// The user's working day: begin and end in minutes after midnight, and a bit for each day of the week. Each is
    /// 480, 1020 or 124 where Outlook's settings hold no such number.
    void GetWorkDay(std::int32_t& startTime, std::int32_t& endTime, std::int32_t& daymask);

    /// Fills the lists of a date selector.
    void DateSelectorInit(
        const Ref<ComboBox>& yearSelector, const Ref<ComboBox>& monthSelector, const Ref<ComboBox>& daySelector);
    /// Sets a date selector to today.
    void DateSelectorToday(
        const Ref<ComboBox>& yearSelector, const Ref<ComboBox>& monthSelector, const Ref<ComboBox>& daySelector);
    /// The date of a date selector, with days and months out of range rolled over; the zero date when it holds none.
    Date DateSelectorGet(
        const Ref<ComboBox>& yearSelector, const Ref<ComboBox>& monthSelector, const Ref<ComboBox>& daySelector);

    /// Deletes tracker files that came into being before the days that are kept.
    void CleanUpOldFiles();
    /// Attaches the trace, the capture logs and the tracker's file of a day to a mail, or all files of the tracker.
    void AttachDiagsFiles(const Ref<MailItem>& item, Date day, bool all);

private:
    Ref<FileSystemObject> mFileSystem;
    Ref<TempodialMain> mMain;
};

}
