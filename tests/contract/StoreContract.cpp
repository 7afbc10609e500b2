#include "contract/StoreContract.h"

namespace tempodial {

Date StoreContract::At(int hour, int minute, int second)
{
    return Date::FromParts({ 2006, 10, 10, hour, minute, second });
}

Ref<AppointmentItem> StoreContract::NewItem(const std::string& subject, Date start, Date end)
{
    auto item = mLog->Items()->Add("IPM.Appointment");
    item->SetSubject(subject);
    item->SetStart(start);
    item->SetEnd(end);
    return item;
}

Ref<AppointmentItem> StoreContract::SavedItem(const std::string& subject, Date start, Date end)
{
    auto item = NewItem(subject, start, end);
    item->Save();
    return item;
}

std::string StoreContract::Quoted(Date date)
{
    return "\"" + mStore->Formats()->Moment(date) + "\"";
}

std::vector<std::string> StoreContract::Subjects(const Ref<Items>& items)
{
    std::vector<std::string> subjects;
    for (std::int32_t index = 1; index <= items->Count(); ++index) {
        subjects.push_back(items->Item(index)->Subject());
    }
    return subjects;
}

std::vector<std::string> StoreContract::Filtered(const std::string& filter)
{
    return Subjects(mLog->Items()->Restrict(filter));
}

}
