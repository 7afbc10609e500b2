#pragma once

#include "contract/ContractStore.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "support/FailureNumber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// What any store must do, with a calendar folder to do it in.
class StoreContract : public testing::TestWithParam<ContractStoreFactory>
{
protected:
    static constexpr auto FormClass = "IPM.Appointment.TDActivity1";
    static constexpr auto NotFound = static_cast<std::int32_t>(Error::ObjectNotFound);

    /// A moment of October 10, 2006.
    static Date At(int hour, int minute, int second = 0);

    Ref<AppointmentItem> NewItem(const std::string& subject, Date start, Date end);
    Ref<AppointmentItem> SavedItem(const std::string& subject, Date start, Date end);
    /// A moment as a filter quotes it.
    std::string Quoted(Date date);
    static std::vector<std::string> Subjects(const Ref<Items>& items);
    std::vector<std::string> Filtered(const std::string& filter);

    std::unique_ptr<ContractStore> mStore = GetParam().make();
    Ref<MAPIFolder> mCalendar = mStore->Session()->GetDefaultFolder(DefaultFolder::Calendar);
    Ref<MAPIFolder> mLog = mCalendar->Folders()->Add("Tempodial", DefaultFolder::Calendar);
};

/// The form of the activities, less its page.
inline FormTemplate ActivityForm()
{
    return { "IPM.Appointment.TDActivity1", "TDActivity1",
        { { "Project", PropertyType::Text, {} }, { "Day", PropertyType::DateTime, {} },
            { "Keyword", PropertyType::Text, "<keyword>" }, { "ApplyPast", PropertyType::YesNo, false } },
        "" };
}

}
