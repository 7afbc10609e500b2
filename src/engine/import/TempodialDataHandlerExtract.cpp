#include "base/Concatenated.h"
#include "base/Number.h"
#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/import/TempodialDataHandler.h"

namespace tempodial {

void TempodialDataHandler::ExtractData(const Ref<XmlNode>& objXML, Date dayDate, SlotActivity& activity)
{
    const auto attempt = Failing("ExtractData error ", LineShape::TextBlankStep);
    auto& utils = *mMain->mUtils;
    const auto& strings = *mMain->mStrings;
    const auto value = [&](std::string_view path) { return utils.GetTextValue(objXML, path); };
    const auto document = [&](const char* trace, const std::string& application, const char* path) {
        Trace(trace);
        activity.application = application;
        activity.description = wrapped(value(path));
    };
    const auto caption
        = [&](const char* path) { activity.description = wrapped(StripAppInfo(value(path), activity.application)); };
    const auto window = [&](const char* trace, const std::string& application) {
        Trace(trace);
        activity.application = application;
        caption("slot/WindowText");
    };

    activity.contacts.clear();
    activity.body.clear();
    std::int32_t index = 0;
    attempt([&] { index = ToInt32(value("slot/AppType")); });
    attempt([&] {
        switch (index) {
        case 1:
            activity.application = strings.mApplicationIE;
            ExtractBrowser(objXML, true, activity);
            break;
        case 2:
            document("SyncData: Word", strings.mApplicationWord, "slot/WordDocName");
            break;
        case 3:
            document("SyncData: Excel", strings.mApplicationExcel, "slot/ExcelDocName");
            break;
        case 4:
            document("SyncData: PPT", strings.mApplicationPPT, "slot/PPTDocName");
            break;
        case 5:
            Trace("SyncData: Outlook");
            ExtractMail(objXML, activity);
            break;
        case 6:
            activity.application = strings.mApplicationFirefox;
            ExtractBrowser(objXML, false, activity);
            break;
        case 7:
            window("SyncData: Notes", strings.mApplicationNotes);
            break;
        case 8:
            window("SyncData: Notepad", strings.mApplicationNotepad);
            break;
        case 9:
            window("SyncData: Explorer", strings.mApplicationExplorer);
            break;
        default:
            Trace(index == 0 ? "SyncData: Unknown app" : "SyncData: unrecognised AppIdx " + std::to_string(index));
            activity.application = value("slot/AppName");
            caption("slot/WindowText");
            if (IsNothing(activity.description)) {
                caption("slot/OwnedWindowText");
            }
        }
    });

    if (IsNothing(activity.description)) {
        activity.description = strings.mDescriptionVarious;
    }
    if (IsNothing(activity.application)) {
        activity.application = strings.mDescriptionVarious;
    }
    attempt([&] { activity.project = value("slot/Project"); });
    if (activity.project == strings.mUnknownString) {
        activity.project.clear();
    }

    mStage = "get starttime";
    const auto takeTime = [&](Date& target, std::string_view path) {
        attempt([&] {
            const auto time = utils.GetTimeFromXML(dayDate, objXML, path);
            if (!time.IsEmpty()) {
                target = time.ToDate();
            }
        });
    };
    takeTime(activity.startTime, "slot/StartTime");
    takeTime(activity.endTime, "slot/EndTime");
    attempt.Say([&] {
        auto& formats = *mPlatform->formats;
        return Concatenated({ "start: ", formats.General(activity.startTime),
            " End: ", formats.General(activity.endTime), " Override: ", activity.project });
    });
    attempt([&] { activity.duration = MinutesBetween(activity.startTime, activity.endTime); });
}

void TempodialDataHandler::ExtractBrowser(const Ref<XmlNode>& objXML, bool tracesChoice, SlotActivity& activity)
{
    auto& utils = *mMain->mUtils;
    const auto& strings = *mMain->mStrings;
    auto caption = utils.GetTextValue(objXML, "slot/WindowText");
    if (caption == strings.mUnknownString) {
        caption.clear();
    }
    const auto url = utils.GetTextValue(objXML, "slot/URL");
    const auto base = utils.GetTextValue(objXML, "slot/BaseURL");
    // kept: no blank before "base".
    Trace(tracesChoice ? "SyncData: IE, URL: " + url + "base: " + base : "SyncData: Firefox");

    if (url != strings.mUnknownString) {
        if (tracesChoice) {
            Trace("Use URL");
        }
        activity.description = wrapped(StripAppInfo(caption, activity.application)) + " (" + url + ")";
        activity.body = url;
    } else if (base != strings.mUnknownString) {
        if (tracesChoice) {
            Trace("Use base");
        }
        activity.description = wrapped(base);
    } else {
        activity.description = strings.mDescriptionVarious;
    }
}

void TempodialDataHandler::ExtractMail(const Ref<XmlNode>& objXML, SlotActivity& activity)
{
    auto& utils = *mMain->mUtils;
    const auto& strings = *mMain->mStrings;
    const auto& unknown = strings.mUnknownString;
    auto& description = activity.description;
    auto& contacts = activity.contacts;
    auto caption = utils.GetTextValue(objXML, "slot/WindowText");
    if (caption == unknown) {
        caption.clear();
    }
    const auto folder = utils.GetTextValue(objXML, "slot/OutlookFolder");
    description = wrapped(utils.GetTextValue(objXML, "slot/OutlookSubject"));
    activity.application = strings.mApplicationOutlookread;

    if (utils.GetTextValue(objXML, "slot/OutlookDirection") == "composed") {
        activity.application = strings.mApplicationOutlookwrote;
        contacts = utils.GetTextValue(objXML, "slot/OutlookTo");
        if (!IsNothing(contacts)) {
            // kept: without a subject this reads "None - " and the recipients.
            description += " - " + contacts;
        }
    } else if (description != unknown) {
        contacts = utils.GetTextValue(objXML, "slot/OutlookFrom");
        if (folder != unknown) {
            description += " (" + folder + strings.mFolderTail + ")";
        }
        if (!IsNothing(contacts)) {
            description += " - " + contacts;
        }
    } else {
        // A mail window's caption is used whole, unlike the others.
        description = caption.empty() ? strings.mDescriptionVarious : wrapped(caption);
        if (folder == strings.mOutboxname) {
            description = strings.mComposing + strings.VARIOUS_SEP + description;
        } else if (folder != unknown) {
            description = folder + strings.mFolderTail + strings.VARIOUS_SEP + description;
        }
    }
    if (contacts == unknown) {
        contacts.clear();
    }
}

std::string TempodialDataHandler::wrapped(const std::string& towrap)
{
    auto result = towrap;
    Failing("", LineShape::Silent)([&] {
        if (!IsNothing(towrap)) {
            result = Concatenated({ "\"", towrap, "\"" });
        }
    });
    return result;
}

std::string TempodialDataHandler::StripAppInfo(const std::string& description, const std::string& application)
{
    constexpr std::string_view Separator = " - ";
    const auto behindSeparator = std::string(Separator) + application;
    if (const auto found = description.find(behindSeparator); found != std::string::npos) {
        auto result = description.substr(0, found);
        const auto further = description.find(Separator, found + behindSeparator.size());
        if (further != std::string::npos) {
            result.append(description, further);
        }
        return result;
    }
    const auto beforeSeparator = application + std::string(Separator);
    return description.starts_with(beforeSeparator) ? Replace(description, beforeSeparator, "") : description;
}

bool TempodialDataHandler::IsNothing(const std::string& text) const
{
    return text.empty() || text == mMain->mStrings->mUnknownString;
}

}
