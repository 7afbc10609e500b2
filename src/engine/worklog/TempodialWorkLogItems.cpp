#include "base/Concatenated.h"
#include "base/Text.h"
#include "engine/foundation/ActivitySubject.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/worklog/TempodialWorkLog.h"

namespace tempodial {

namespace {

/// Only hosts that keep such a mark have the property.
constexpr auto ProjectByHandProperty = "ProjectByHand";

/// True when the item says that a person chose its project, which imports then leave alone.
bool IsProjectByHand(const Attempt& attempt, const Ref<UserProperties>& properties)
{
    return properties && attempt.Get([&] {
        const auto mark = properties->Item(ProjectByHandProperty);
        return mark && mark->Value().ToBoolean();
    });
}

}

Ref<AppointmentItem> TempodialWorkLog::CreateCalendarItem(const std::string& project, const std::string& newDescription,
    const std::string& newApplication, const std::string& newContacts, std::int32_t newDuration, Date newStart,
    Date newEnd, const std::string& body, bool display, bool saveIt)
{
    const auto attempt = Failing("CCI error ", LineShape::TextBlankStep);
    Trace("CreateCalendarItem - " + newDescription);
    const auto folder = GetSyncedWorkLog(false);
    if (!folder) {
        return nullptr;
    }
    const auto& formClass = mMain->mStrings->mFormClass;
    Ref<AppointmentItem> item;
    attempt([&] { item = folder->Items()->Add(formClass); }, [&](const Failure&) { Trace("Add failed"); });
    if (item) {
        const bool ours = attempt.Get([&] {
            const auto messageClass = item->MessageClass();
            Trace("message class of new item: " + messageClass);
            return messageClass == formClass;
        });
        if (!ours
            || UpdateCalendarItem(item, project, newDescription, newApplication, newContacts, newDuration, newStart,
                   newEnd, body, true, !display, saveIt)
                != 0) {
            return nullptr;
        }
        if (display) {
            Trace("display");
            attempt([&] { item->Display(); });
        }
    }
    Trace("calendar item create exit");
    return item;
}

std::int32_t TempodialWorkLog::UpdateCalendarItem(const Ref<AppointmentItem>& item, const std::string& newProject,
    const std::string& newDescription, const std::string& newApplication, const std::string& newContacts,
    std::int32_t newDuration, Date newStart, Date newEnd, const std::string& body, bool newItem, bool closeIt,
    bool saveIt)
{
    const auto attempt = Failing("update item error ", LineShape::TextBlankStep);
    std::int32_t code = 0;
    mStage = "end setting";
    Trace("Update item ");
    if (!newItem && mMain->IsInspector(item)) {
        Trace("It's open, abort");
        return code;
    }

    mStage = "get item properties";
    const auto properties = attempt.Get([&] { return item->UserProperties(); });
    mStage = "Fill in Item";
    attempt([&] { item->SetDuration(newDuration); });
    attempt([&] { item->SetStart(newStart); });
    attempt([&] { item->SetEnd(newEnd); });
    if (!body.empty()) {
        attempt([&] { item->SetBody(body); });
    }

    auto project = newProject;
    if (newProject.empty()) {
        attempt([&] { project = mMain->WhatProject(CreateSubject("", newApplication, newDescription), ""); });
        if (!newItem) {
            // kept: the project that the item has wins, also an empty one
            attempt([&] {
                auto present = properties->Item("Project")->Value().ToText();
                if (present != mMain->mStrings->mNoProject || IsProjectByHand(attempt, properties)) {
                    project = std::move(present);
                }
            });
        }
    }
    attempt([&] { item->SetSubject(CreateSubject(project, newApplication, newDescription)); });
    attempt([&] { item->SetMileage(project); });
    attempt([&] { item->SetBillingInformation(newDescription); });
    WriteProperties(attempt, properties, project, newDescription, newApplication, newContacts, newStart);

    if (saveIt) {
        attempt([&] { item->Save(); },
            [&](const Failure& failure) {
                Trace("save failed " + failure.Description());
                code = 1;
            });
    }
    if (closeIt) {
        attempt([&] { item->Close(CloseMode::Discard); });
    }
    return code;
}

void TempodialWorkLog::WriteProperties(const Attempt& attempt, const Ref<UserProperties>& properties,
    const std::string& project, const std::string& newDescription, const std::string& newApplication,
    const std::string& newContacts, Date newStart)
{
    const auto write = [&](const char* name, PropertyType type, const Variant& value) {
        const auto property = GetOrAdd(attempt, properties, name, type);
        mStage = "write props";
        attempt([&] { property->SetValue(value); });
    };
    write("Type", PropertyType::Text, newApplication);
    write("Day", PropertyType::DateTime, newStart.Day());
    write("StartTime", PropertyType::Text, newStart.HourMinute());

    const auto projectProperty = GetOrAdd(attempt, properties, "Project", PropertyType::Text);
    mStage = "write props";
    attempt([&] { mStage = "write props Value - current Value: " + projectProperty->Value().ToText(); });
    attempt([&] { projectProperty->SetValue(project); });

    write("Description", PropertyType::Text, newDescription);
    write("People", PropertyType::Text, newContacts);
    write("Keyword", PropertyType::Text, mMain->mStrings->mSelectAKeyword);
    write("ApplyPast", PropertyType::YesNo, false);
}

Ref<UserProperty> TempodialWorkLog::GetOrAdd(
    const Attempt& attempt, const Ref<UserProperties>& properties, const char* name, PropertyType type)
{
    mStage = "get props";
    auto property = attempt.Get([&] { return properties->Item(name); });
    if (!property) {
        mStage = "add props";
        property = attempt.Get([&] { return properties->Add(name, type, true); });
    }
    return property;
}

bool TempodialWorkLog::IsContinuable(const Ref<AppointmentItem>& /*item*/)
{
    return true;
}

void TempodialWorkLog::ExtraCalendarItemInfo(const Ref<AppointmentItem>& item, const std::string& newDescription,
    const std::string& newApplication, const std::string& newProject, const std::string& newContacts, Date /*newStart*/,
    Date /*newEnd*/, const std::string& newBody)
{
    const auto attempt = Failing("ExtraCalendarInfo error ", LineShape::TextBlankStep);
    const auto& strings = *mMain->mStrings;
    attempt.Say([&] {
        return "add xtra info to: " + item->Subject() + "start " + mPlatform->formats->General(item->Start()) + " end "
            + mPlatform->formats->General(item->End());
    });
    mStage = "new detail";
    if (mMain->IsInspector(item)) {
        return;
    }
    // kept: a list that carries the heading already carries it twice from now on
    attempt([&] { item->SetBody(strings.mDetailStart + std::string(CrLf) + newBody); });

    const auto properties = attempt.Get([&] { return item->UserProperties(); });
    const auto description = attempt.Get([&] { return properties->Item("Description"); });
    const auto oldDescription = attempt.Get([&] { return description->Value().ToText(); });
    if (!oldDescription.starts_with(strings.mDescriptionVariousIncluding)
        && oldDescription.find("http:") == std::string::npos) {
        Trace("replace desc a: " + oldDescription);
        const auto including = strings.mDescriptionVariousIncluding + newDescription;
        attempt([&] { description->SetValue(including); });
        if (!newContacts.empty()) {
            attempt([&] {
                const auto people = properties->Item("People");
                people->SetValue(newContacts + ";" + people->Value().ToText());
            });
        }
        const auto subject = CreateSubject("", newApplication, newDescription);
        const auto project = newProject.empty() ? mMain->WhatProject(subject, "") : newProject;
        const auto projectProperty = attempt.Get([&] { return properties->Item("Project"); });
        if (!IsProjectByHand(attempt, properties)) {
            attempt([&] { projectProperty->SetValue(project); });
        }
        attempt([&] { RefreshCalendarItem(item, projectProperty->Value().ToText(), including, false); });
    }
    Trace("save and close");
    attempt([&] { item->Save(); });
    attempt([&] { item->Close(CloseMode::Discard); });
}

void TempodialWorkLog::RefreshCalendarItem(const Ref<AppointmentItem>& item, const std::string& newProject,
    const std::string& newDescription, bool subjectOnly)
{
    const auto attempt = Failing("RefreshCalendarItem error ", LineShape::TextBlankStep);
    const auto oldProject = attempt.Get([&] { return item->Mileage(); });
    const auto oldDescription = attempt.Get([&] { return item->BillingInformation(); });
    Trace("RefreshCalendarItem : " + newDescription);
    Trace("old: " + oldProject + " new: " + newProject);
    const bool changed = !subjectOnly && newProject != oldProject;
    if (changed) {
        Trace("Project has changed");
        attempt([&] { mMain->UpdateorAddProject(newProject, "", "", "", "2", true); });
        attempt([&] { item->SetMileage(newProject); });
    }
    const auto type = attempt.Get([&] { return item->UserProperties()->Item("Type")->Value().ToText(); });
    Trace("RefreshCalendarItem oldDesc : " + oldDescription);
    if (changed || newDescription != oldDescription) {
        attempt([&] { item->SetSubject(CreateSubject(newProject, type, newDescription)); });
        attempt([&] { item->SetBillingInformation(newDescription); });
    }
}

std::string TempodialWorkLog::GetBody(const Ref<AppointmentItem>& item)
{
    const auto attempt = Failing("", LineShape::Silent);
    std::string body;
    mStage = "get body";
    Trace("GetBody");
    if (!mMain->mSecurityPopups) {
        attempt([&] { body = item->Body(); },
            [&](const Failure& failure) { HandleSecurityException("security exception on getbody", failure); });
    }
    return body;
}

void TempodialWorkLog::HandleSecurityException(std::string_view words, const Failure& failure)
{
    Trace(std::string(words) + failure.Description());
    if (failure.Is(Error::SecurityRefusal)) {
        Trace("security popup seen! drop all email guarded function from now on");
        mMain->mSecurityPopups = true;
        mMain->mCommonUtils->MarkEmailObjectGuardInPlace();
    }
}

bool TempodialWorkLog::ApplyProjectToItem(const std::string& project, const Ref<AppointmentItem>& item)
{
    const auto attempt = Failing("applyproject error ", LineShape::TextBlankStep);
    mStage = "set properties";
    const auto properties = attempt.Get([&] { return item->UserProperties(); });
    bool isReadable = true;
    const auto text = [&](const char* name) {
        std::string value;
        isReadable &= attempt([&] { value = properties->Item(name)->Value().ToText(); });
        return value;
    };
    const auto people = text("People");
    const auto type = text("Type");
    const auto description = text("Description");
    Trace("check if project matches");
    // An item that couldn't be read whole would be written with what is missing.
    if (!mMain->IsProject(project, CreateSubject("", type, description), people) || !isReadable) {
        return false;
    }
    Trace("project matches");
    const bool written = attempt([&] { properties->Item("Project")->SetValue(project); });
    Trace("refresh project");
    RefreshCalendarItem(item, project, description, false);
    return written;
}

void TempodialWorkLog::CreateCalendarDuplicate(const Ref<AppointmentItem>& item, bool display, bool save)
{
    const auto attempt = Failing("create dupe now error ", LineShape::TextBlankStep);
    attempt.Say([&] {
        return "Create dupe now for: " + mPlatform->formats->General(item->Start()) + " to "
            + mPlatform->formats->General(item->End());
    });
    const auto subject = attempt.Get([&] { return item->Subject(); });
    const auto start = attempt.Get([&] { return item->Start(); });
    const auto end = attempt.Get([&] { return item->End(); });
    // kept: the duration is a truth value; start and end, written after it, settle the length
    const auto duration = attempt.Get([&] { return MinutesBetween(start, end) == 0 ? -1 : 0; });
    const auto duplicate = CreateCalendarItem("", subject, "", "", duration, start, end, "", display, save);
    if (!mMain->mSecurityPopups) {
        attempt([&] { duplicate->SetBody(item->Body()); },
            [&](const Failure& failure) { HandleSecurityException("security exception on errorreport", failure); });
    }
    if (save) {
        attempt([&] { duplicate->Save(); });
    }
    if (!display) {
        attempt([&] { duplicate->Close(CloseMode::Discard); });
    }
}

void TempodialWorkLog::mLogItems_ItemAdd(const Ref<OutlookItem>& item)
{
    const auto attempt = Failing("Itemadd error ", LineShape::TextBlankStep);
    Trace("ItemAdd event");
    if (IsOurItem(item)) {
        return;
    }
    const auto original = item.As<AppointmentItem>();
    Trace("Delete original and popup ours");
    CreateCalendarDuplicate(original, true, true);
    attempt([&] { original->Delete(); });
}

bool TempodialWorkLog::IsOurItem(const Ref<OutlookItem>& itemToCheck)
{
    const auto attempt = Failing("Check Item 2 error ", LineShape::StepNumberText);
    return attempt.Get([&] {
        const auto messageClass = itemToCheck->MessageClass();
        Trace(Concatenated({ "Check item 2: ", messageClass, ", ", itemToCheck->Subject() }));
        return messageClass == mMain->mStrings->mFormClass;
    });
}

Variant TempodialWorkLog::GetAttribute(const std::string& attrib, const Ref<AppointmentItem>& item)
{
    const auto attempt = Failing("getattribute error ", LineShape::StepNumberText);
    return attempt.Get([&] {
        mStage = "UserProps";
        const auto properties = item->UserProperties();
        mStage = "attrib";
        const auto property = properties->Item(attrib);
        mStage = "value";
        return property->Value();
    });
}

std::string TempodialWorkLog::CreateSubject(
    const std::string& project, const std::string& application, const std::string& description)
{
    const auto attempt = Failing("createsubject error ", LineShape::StepNumberText);
    return attempt.Get([&] {
        const auto& strings = *mMain->mStrings;
        auto subject = ActivitySubject(application, description);
        if (!project.empty() && project != strings.mNoProject) {
            subject = Concatenated({ "[", project, "] ", subject });
        }
        Trace("createsubject: " + subject);
        return subject;
    });
}

std::string TempodialWorkLog::CreateDurationString(std::int32_t duration)
{
    auto hours = duration / 60;
    const auto minutes = duration % 60;
    bool half = minutes >= 16 && minutes < 45;
    if (minutes > 45) {
        ++hours;
    }
    half |= hours == 0;
    return "(" + std::to_string(hours) + (half ? ".5 " : " ") + mMain->mStrings->mMinShort + ")";
}

}
