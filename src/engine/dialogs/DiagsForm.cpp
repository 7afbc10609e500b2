#include "engine/dialogs/DiagsForm.h"

#include "engine/core/TempodialMain.h"
#include "engine/dialogs/ProblemReportText.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialUtils.h"
#include "platform/controls/Button.h"

#include <utility>

namespace tempodial {

namespace {

FormDefinition DiagsDefinition()
{
    using enum ControlKind;
    return { .className = "DiagsForm",
        .title = "Reporting a Problem",
        .rows = {
            { { "Label2", Label, "Description" } },
            { { "Label4", Label, "What did you e&xpect to happen?" } },
            { { .name = "ExpectedText", .kind = TextBox, .text = "", .severalLines = true } },
            { { "Label7", Label, "For example, click my folder and see my activities" } },
            { { "Label5", Label, "What &actually happened?" } },
            { { .name = "ActualText", .kind = TextBox, .text = "", .severalLines = true } },
            { { "Label9", Label, "For example, nothing happened" } },
            { { "Label1", Label, "Date" } },
            { { "Label6", Label, "&When did the problem occur?" } },
            { { "YearComboFrom", ComboBox, "" }, { "MonthComboFrom", ComboBox, "" }, { "DayComboFrom", ComboBox, "" } },
            { { "Label8", Label, "Information" } },
            // kept: "will be never be", as people know it.
            { { "Label3", Label,
                "To diagnose your problem, we need to collect information including email subjects and recipients.  "
                "This information will be never be passed to anyone else and we will destroy it once your problem is "
                "diagnosed. If you are happy for us to collect these diagnostics, select OK." } },
            { { .name = "OK", .kind = Button, .text = "OK", .role = ButtonRole::Default },
                { .name = "Cancel", .kind = Button, .text = "Cancel", .role = ButtonRole::Cancel } },
        } };
}

}

DiagsForm::DiagsForm(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
    , mForm(mPlatform->forms->Create(DiagsDefinition()))
    , mExpectedText(mForm->Control("ExpectedText").As<TextBox>())
    , mActualText(mForm->Control("ActualText").As<TextBox>())
    , mYearComboFrom(mForm->Control("YearComboFrom").As<ComboBox>())
    , mMonthComboFrom(mForm->Control("MonthComboFrom").As<ComboBox>())
    , mDayComboFrom(mForm->Control("DayComboFrom").As<ComboBox>())
{
}

void DiagsForm::Initialise(const Ref<TempodialMain>& main)
{
    const auto attempt = Failing("", LineShape::Silent);
    mMain = main;
    mDone = false;
    const auto self = shared_from_this();
    attempt([&] {
        mOKEvents
            = mForm->Control("OK").As<Button>()->Subscribe({ .Click = GuardedHandler(self, &DiagsForm::OK_Click) });
    });
    attempt([&] {
        mCancelEvents = mForm->Control("Cancel").As<Button>()->Subscribe(
            { .Click = GuardedHandler(self, &DiagsForm::Cancel_Click) });
    });
    attempt([&] { mFormEvents = mForm->Subscribe({ .QueryClose = GuardedHandler(self, &DiagsForm::QueryClose) }); });
    attempt([&] { mMain->mUtils->DateSelectorInit(mYearComboFrom, mMonthComboFrom, mDayComboFrom); });
    attempt([&] { mMain->mUtils->DateSelectorToday(mYearComboFrom, mMonthComboFrom, mDayComboFrom); });
}

std::string DiagsForm::GetBody()
{
    const auto attempt = Failing("", LineShape::Silent);
    const auto day = Day();
    return attempt.Get([&] {
        return ProblemReportText::Body(
            mPlatform->formats->LongDate(day), mExpectedText->Text(), mActualText->Text(), mMain->mConfig->mTDVersion);
    });
}

void DiagsForm::Terminate()
{
    mMain = nullptr;
}

void DiagsForm::Show()
{
    const auto attempt = Failing("", LineShape::Silent);
    if (attempt([&] { mForm->Show(); })) {
        mShown = shared_from_this();
    }
}

Date DiagsForm::Day() const
{
    const auto attempt = Failing("", LineShape::Silent);
    return attempt.Get([&] { return mMain->mUtils->DateSelectorGet(mYearComboFrom, mMonthComboFrom, mDayComboFrom); });
}

void DiagsForm::OK_Click()
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { mForm->Hide(); });
    const auto day = Day();
    const auto text = GetBody();
    // The mail that comes up may end the add-in, and with it this reference.
    attempt([&, main = mMain] { main->ReportProblem(text, day, false, false); });
    Close();
}

void DiagsForm::Cancel_Click()
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { mForm->Hide(); });
    Close();
}

void DiagsForm::QueryClose(bool&)
{
    // The frame takes the form off the screen, which is all that cancelling does.
    Close();
}

void DiagsForm::Close()
{
    const auto attempt = Failing("", LineShape::Silent);
    mDone = true;
    attempt([&] { mForm->Unload(); });
    mShown = nullptr;
}

}
