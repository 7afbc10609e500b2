#include "review/ActivityRecord.h"

#include "host/store/StoreItem.h"
#include "host/system/LocalTime.h"

namespace tempodial {

ActivityRecord ReadActivity(const Ref<AppointmentItem>& item)
{
    const auto properties = item->UserProperties();
    const auto text = [&properties](const char* name) {
        const auto property = properties->Item(name);
        return property ? property->Value().ToText() : std::string();
    };
    const auto stored = item.As<StoreItem>();
    const auto saved = stored ? stored->SavedAt() : std::nullopt;
    return { .entryId = item->EntryID(),
        .start = item->Start(),
        .end = item->End(),
        .duration = item->Duration(),
        .project = text("Project"),
        .application = text("Type"),
        .description = text("Description"),
        .people = text("People"),
        .subject = item->Subject(),
        .body = item->Body(),
        .saved = saved ? *saved : LocalTime::UniversalOf(item->End()) };
}

}
