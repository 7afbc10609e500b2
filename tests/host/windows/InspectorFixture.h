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

    InspectorFixture();

    /// A saved activity from nine to five past.
    Ref<StoreItem> NewActivity(const std::string& subject = "a") const;
    Ref<StoreItem> NewAppointment(const std::string& subject = "a") const;
    static Date At(int hour);
    /// What the mailbox holds of an item, whatever its objects hold.
    ItemData Stored(const Ref<StoreItem>& item) const;

    /// Notes what an item tells; `action` may refuse it.
    Subscription Note(
        const Ref<StoreItem>& item, std::function<void(const std::string& word, bool& cancel)> action = {});
    Subscription Note(const Ref<HostInspector>& inspector, std::function<void()> action = {});
    /// Does something with each new window, from its event on.
    Subscription OnNew(std::function<void(const Ref<HostInspector>& inspector)> action) const;
    static void Click(const Ref<HostInspector>& inspector, std::int32_t id);

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<HostApplication> mApplication = MakeRef<HostApplication>(mMailbox);
    Ref<MAPIFolder> mCalendar = mMailbox->FolderByPath("Calendar");
    std::vector<std::string> mHeard;
};

}
