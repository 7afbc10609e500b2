#include "base/Text.h"
#include "engine/foundation/ActivitySubject.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/TempodialInspector.h"

#include <vector>

namespace tempodial {

namespace {

/// The days of the past to which a project chosen on the page is applied.
constexpr std::int32_t DaysAppliedOnSave = 7;

/// The value of a control as text.
std::string TextOf(const Ref<PageControl>& control)
{
    return control->Value().ToText();
}

/// A rule with a quotation mark at one end has one at both.
std::string WithBothMarks(std::string rule)
{
    const bool opened = rule.starts_with('"');
    const bool closed = rule.ends_with('"');
    if (closed && !opened) {
        rule.insert(0, 1, '"');
    }
    if (opened && !closed) {
        rule.push_back('"');
    }
    return rule;
}

}

Date TempodialInspector::MomentOf(const Ref<PageControl>& control) const
{
    const auto value = control->Value();
    const auto* text = value.If<std::string>();
    return text == nullptr ? value.ToDate() : mPlatform->formats->Parse(*text);
}

void TempodialInspector::InitUnbound()
{
    const auto attempt = Failing("InitUnbound error ", LineShape::TextOnly);
    attempt([&] { mApplicationControl->SetText(Property("Type")->Value().ToText()); });
    attempt.Say([&] { return "Type: " + Property("Type")->Value().ToText(); });
}

void TempodialInspector::UpdateProjectDropdown()
{
    const auto attempt = Failing("UpdateProjectDropdown error ", LineShape::TextBlankStep);
    Trace("UpdateProjectDropdown");
    mStage = "Call GetProjects";
    std::vector<std::string> projects;
    attempt([&] { mMain->GetProjects(projects, true, true, false); });
    mStage = "Set list";
    attempt([&] { mProjectControl->SetList(projects); });
}

void TempodialInspector::UpdateFormDropdowns()
{
    const auto attempt = Failing("UpdateFormDropdowns error ", LineShape::TextBlankStep);
    Trace("UpdateFormDropdowns");
    UpdateProjectDropdown();
    const auto description = attempt.Get([&] { return mSubjectControl->Text(); });
    const auto people = attempt.Get([&] { return mPeopleControl->Text(); });
    auto desc = description;
    if (!people.empty()) {
        Trace("before: " + description);
        Trace("replace:  - " + people);
        desc = WithoutPeople(description, people);
        Trace("after: " + desc);
    }
    Trace("populate the description dropdown");
    const auto add = [&](const std::string& entry) { attempt([&] { mDescControl->AddItem(entry); }); };
    if (!description.empty()) {
        add(DescriptionKeyword(desc));
    }
    const auto application = attempt.Get([&] { return mApplicationControl->Text(); });
    if (!application.empty()) {
        add(ApplicationKeyword(application));
    }
    for (const auto& person : PeopleKeywords(people)) {
        add(person);
    }
    attempt([&] { mDescControl->AddItem(mMain->mStrings->mSelectAKeyword); });
    attempt([&] { mOldKeyword = TextOf(mDescControl); });
}

bool TempodialInspector::IsAnyDataChanged()
{
    const auto attempt = Failing("IsUnbound error ", LineShape::TextOnly);
    return attempt.Get([&] { return IsUnbound(); }) || attempt.Get([&] { return IsBoundData(); });
}

bool TempodialInspector::IsUnbound()
{
    return false; // No control of the page lives apart from the item.
}

bool TempodialInspector::IsBoundData()
{
    const auto attempt = Failing("IsBound error ", LineShape::TextOnly);
    attempt.Say([&] { return "IsBoundData to write? " + TextOf(mProjectControl); });
    const bool same = attempt.Get([&] { return TextOf(mProjectControl) == mOldProject; })
        && attempt.Get([&] { return TextOf(mDescControl) == mOldKeyword; })
        && attempt.Get([&] { return mSubjectControl->Text() == mOldDescription; })
        && attempt.Get([&] { return mPeopleControl->Text() == mOldPeople; })
        && attempt.Get([&] { return MomentOf(mStartControl) == mOldStart; })
        && attempt.Get([&] { return MomentOf(mEndControl) == mOldEnd; });
    if (!same) {
        Trace("bound data changed");
    }
    return !same;
}

void TempodialInspector::ResetAll()
{
    const auto attempt = Failing("Reset all error ", LineShape::TextOnly);
    attempt([&] { ResetUnbound(); });
    attempt([&] { Resetbound(); });
    attempt([&] { ResetKeys(); });
}

void TempodialInspector::ResetUnbound()
{
    Failing("ResetUnbound error ", LineShape::TextOnly).Say("ResetUnbound mOldProject: " + mOldProject);
}

void TempodialInspector::Resetbound()
{
    const auto attempt = Failing("Resetbound error ", LineShape::TextOnly);
    attempt([&] { mOldProject = TextOf(mProjectControl); });
    Trace("mOldProject: " + mOldProject);
    attempt([&] { mOldDescription = mSubjectControl->Text(); });
    attempt([&] { mOldPeople = mPeopleControl->Text(); });
    attempt([&] { mOldStart = MomentOf(mStartControl); });
    attempt([&] { mOldEnd = MomentOf(mEndControl); });
    attempt([&] { ResetKeys(); });
}

void TempodialInspector::ResetKeys()
{
    const auto attempt = Failing("ResetKeys error ", LineShape::TextOnly);
    attempt([&] { mOldKeyword = TextOf(mDescControl); });
    Trace("ResetKeys mOldProject: " + mOldProject);
}

bool TempodialInspector::WriteAll()
{
    const auto attempt = Failing("WriteAll error ", LineShape::TextBlankStep);
    mStage = "validate project";
    const auto error = attempt.Get([&] { return mMain->ValidateProject(TextOf(mProjectControl)); });
    mStage = "check for errors";
    const bool accepted
        = error.empty() || attempt.Get([&] { return TextOf(mProjectControl) == mMain->mStrings->mNoProject; });
    if (accepted) {
        mStage = "save item things";
        Trace("WriteAll now");
        writeunbound();
        Writebound();
    } else {
        mStage = "popup";
        attempt([&, box = mPlatform->messageBox] { box->Show(error, { Answer::Ok }, MessageIcon::None); });
    }
    // kept: a refused project is applied as well
    if (attempt.Get([&] { return mApplyControl->Value().ToBoolean(); })) {
        attempt([&, main = mMain] { main->ApplyProject(TextOf(mProjectControl), DaysAppliedOnSave); });
    }
    mStage = "exit writeAll";
    return accepted;
}

void TempodialInspector::writeunbound()
{
    const auto attempt = Failing("writeUnbound error ", LineShape::TextOnly);
    Trace("writeunbound");
    Trace("writeUnbound reset and exit");
    attempt([&] { ResetUnbound(); });
    mStage = "exit writeunbound";
}

void TempodialInspector::Writebound()
{
    const auto attempt = Failing("writebound error ", LineShape::TextOnly);
    Trace("Writebound");
    mStage = "refreshcalitem";
    attempt([&] { mMain->RefreshCalendarItem(mCurrentItem, TextOf(mProjectControl), mSubjectControl->Text(), false); });
    SaveRules();
    if (!attempt.Get([&] { return MomentOf(mStartControl) == mOldStart; })) {
        Date day;
        const bool known = attempt([&] { day = MomentOf(mStartControl).Day(); });
        if (known && !attempt.Get([&] { return Property("Day")->Value() == Variant(day); })) {
            attempt([&] { Property("Day")->SetValue(day); });
        }
    }
    Resetbound();
}

void TempodialInspector::SaveRules()
{
    const auto attempt = Failing("Save rules error ", LineShape::TextBlankStep);
    Trace("Save rules");
    mStage = "start";
    Trace("Desc update?");
    const bool known = attempt.Get([&] { return TextOf(mDescControl) == mOldKeyword; });
    if (known || attempt.Get([&] { return TextOf(mDescControl) == mMain->mStrings->mSelectAKeyword; })) {
        return;
    }
    attempt.Say([&] { return "new desc rule: " + TextOf(mDescControl); });
    Trace("add desc rule");
    const auto rule = attempt.Get([&] { return WithBothMarks(Trim(TextOf(mDescControl))); });
    attempt([&] { mMain->UpdateorAddProjectRule(TextOf(mProjectControl), rule, ""); });
    mStage = "exit save rules";
}

void TempodialInspector::ReverseAll()
{
    const auto attempt = Failing("Reverse all error ", LineShape::TextOnly);
    attempt([&] { ReverseUnbound(); });
    attempt([&] { Reversebound(); });
}

void TempodialInspector::ReverseUnbound()
{
    Failing("ReverseUnbound error ", LineShape::TextOnly).Say("ReverseUnbound mOldProject: " + mOldProject);
}

void TempodialInspector::Reversebound()
{
    const auto attempt = Failing("Reversebound error ", LineShape::TextOnly);
    Trace("Reversebound");
    attempt.Say([&] { return "Item description before: " + mSubjectControl->Text(); });
    attempt([&] { mSubjectControl->SetText(mOldDescription); });
    attempt.Say([&] { return "Item description aft: " + mSubjectControl->Text(); });
    attempt([&] { mPeopleControl->SetText(mOldPeople); });
    attempt([&] { mStartControl->SetValue(mOldStart); });
    attempt([&] { mEndControl->SetValue(mOldEnd); });
    attempt([&] { mDescControl->SetValue(mOldKeyword); });
    attempt([&] { mProjectControl->SetValue(mOldProject); });
}

void TempodialInspector::ClearFormProperties()
{
    const auto attempt = Failing("InitUnbound error ", LineShape::TextOnly);
    attempt([&] { Property("Keyword")->SetValue(mMain->mStrings->mSelectAKeyword); });
    attempt([&] { Property("ApplyPast")->SetValue(false); });
}

}
