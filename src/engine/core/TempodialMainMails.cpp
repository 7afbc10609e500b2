#include "base/Number.h"
#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/reports/TempodialReport.h"

namespace tempodial {

void TempodialMain::ReportProblem(const std::string& body, Date day, bool all, bool cancelled)
{
    const auto attempt = Failing("ReportProblem error ", LineShape::TextColonStep);
    attempt.Say("Generate a problem report");
    mStage = "generate";
    if (cancelled) {
        return;
    }
    mStage = "create";
    const auto item = attempt.Get([&] { return mApplication->CreateItem(); });
    mStage = "attach";
    attempt([&, utils = mUtils] { utils->AttachDiagsFiles(item, day, all); });
    mStage = "subject and body";
    auto text = body;
    AddressProblemReport(item, text);
    attempt([&] {
        const auto now = mPlatform->clock->Now();
        item->SetSubject(
            "Tempodial Problem Report: " + mPlatform->formats->LongDate(now) + " " + mPlatform->formats->LongTime(now));
    });
    attempt([&] { item->SetBody(text); });
    mStage = "display";
    attempt([&] { item->Display(); });
}

void TempodialMain::AddressProblemReport(const Ref<MailItem>& item, std::string& body)
{
    const auto refused = [this](const Failure& failure) {
        Trace("security exception on errorreport" + failure.Description());
        if (failure.Is(Error::SecurityRefusal)) {
            Trace("security popup seen! drop all email guarded function from now on");
            mSecurityPopups = true;
            mCommonUtils->MarkEmailObjectGuardInPlace();
        }
    };
    const auto attempt = Failing("", LineShape::Silent);
    if (mSecurityPopups) {
        // kept: the header ends in a line end of its own.
        attempt([&] { body = mStrings->mReport2002header + std::string(CrLf) + body; }, refused);
    } else {
        attempt([&] { item->Recipients()->Add(mStrings->mReportRecip); }, refused);
    }
}

bool TempodialMain::CreateReport(Date startDate, Date endDate, std::int32_t reportType, bool detailed,
    bool createCSVFile, bool htmlFormat, bool workDayOnly)
{
    // The report lets messages be processed, and the host may disconnect then.
    const auto self = shared_from_this();
    // kept: the words are those of the dialog's member.
    const auto attempt = Failing("Showreportform", LineShape::TextColonStep);
    attempt.Say("Generate a temporeport, with csv? " + std::string(BooleanText(createCSVFile)));
    mStage = "generate";
    attempt([&] { SyncData(mConfig->mSavedDataDays, false); });
    mStage = "create email";
    const auto item = attempt.Get([&] { return mApplication->CreateItem(); });
    mStage = "subject and body";
    const auto report = mTempodialReport;
    attempt([&] { item->SetSubject(report->BuildHeader(startDate, endDate, reportType)); });
    std::string csvFilePath;
    const auto text = attempt.Get([&] {
        return report->CreateReport(
            startDate, endDate, reportType, detailed, createCSVFile, csvFilePath, !htmlFormat, workDayOnly);
    });
    if (!mLog) {
        return false; // The add-in was ended during it.
    }
    if (htmlFormat) {
        attempt([&] { item->SetHTMLBody(text); });
    } else {
        attempt([&] { item->SetBody(text); });
    }
    if (createCSVFile) {
        attempt.Say("attach csv file");
        attempt([&] { item->Attachments()->Add(csvFilePath); });
        // kept: the file goes also when attaching it failed.
        attempt([&] { mFileSystem->DeleteFile(csvFilePath, false); });
    }
    mStage = "display";
    attempt([&] { item->Display(); });
    return report && report->HasText();
}

}
