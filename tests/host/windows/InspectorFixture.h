#pragma once

#include "host/store/StoreItem.h"
#include "host/windows/HostApplication.h"
#include "support/FailureNumber.h"
#include "support/TestMailbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A host with the form of activities, whose events a test notes.
class InspectorFixture : public testing::Test
{
protected:
    static constexpr auto Gone = static_cast<std::int32_t>(Error::ServerUnavailable);
    static constexpr auto NotFound = static_cast<std::int32_t>(Error::ObjectNotFound);
    static constexpr auto ActivityClass = "IPM.Appointment.TDActivity1";

    InspectorFixture()
    {
        const auto item
            = mApplication->CreateItemFromTemplate(std::string(TEMPODIAL_SHARE_DIR) + "/WorkLogForm.oft", mCalendar);
        item->FormDescription()->SetDisplayName("Activity");
        item->FormDescription()->PublishForm(FormRegistry::Personal);
    }

    /// A saved activity from nine to five past.
    Ref<StoreItem> NewActivity(const std::string& subject = "a") const
    {
        auto item = mCalendar->Items()->Add(ActivityClass).As<StoreItem>();
        item->SetSubject(subject);
        item->SetStart(At(9));
        item->SetEnd(At(9).AddMinutes(5));
        item->UserProperties()->Item("Project")->SetValue("Garden");
        item->Save();
        return item;
    }
    Ref<StoreItem> NewAppointment(const std::string& subject = "a") const
    {
        auto item = NewTestItem(mMailbox, subject);
        item->Save();
        return item;
    }
    static Date At(int hour) { return Date::FromParts({ 2006, 10, 10, hour, 0, 0 }); }
    /// What the mailbox holds of an item, whatever its objects hold.
    ItemData Stored(const Ref<StoreItem>& item) const { return mMailbox->Stored(item); }

    /// Notes what an item tells; `action` may refuse it.
    Subscription Note(
        const Ref<StoreItem>& item, std::function<void(const std::string& word, bool& cancel)> action = {})
    {
        const auto noting = [this, action = std::move(action)](const char* word) {
            return [this, action, word](bool& cancel) {
                mHeard.emplace_back(word);
                if (action) {
                    action(word, cancel);
                }
            };
        };
        return item->Subscribe({ noting("open"), noting("write"), noting("close") });
    }
    Subscription Note(const Ref<HostInspector>& inspector, std::function<void()> action = {})
    {
        return inspector->Subscribe({ [this, number = inspector->Number(), action = std::move(action)] {
            mHeard.push_back("gone " + std::to_string(number));
            if (action) {
                action();
            }
        } });
    }
    /// Does something with each new window, from its event on.
    Subscription OnNew(std::function<void(const Ref<HostInspector>& inspector)> action) const
    {
        return mApplication->Inspectors()->Subscribe({ [action = std::move(action)](const Ref<Inspector>& inspector) {
            action(inspector.As<HostInspector>());
        } });
    }
    static void Click(const Ref<HostInspector>& inspector, std::int32_t id)
    {
        inspector->CommandBars()->ItemNamed("Standard")->FindControl({ id, {} }).As<HostCommandBarControl>()->Click();
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<HostApplication> mApplication = MakeRef<HostApplication>(mMailbox);
    Ref<MAPIFolder> mCalendar = mMailbox->FolderByPath("Calendar");
    std::vector<std::string> mHeard;
};

}
