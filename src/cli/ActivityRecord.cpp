#include "cli/ActivityRecord.h"

namespace tempodial {

ActivityRecord ReadActivity(const Ref<AppointmentItem>& item)
{
    const auto properties = item->UserProperties();
    const auto text = [&properties](const char* name) {
        const auto property = properties->Item(name);
        return property ? property->Value().ToText() : std::string();
    };
    return { .entryId = item->EntryID(),
        .start = item->Start(),
        .end = item->End(),
        .duration = item->Duration(),
        .project = text("Project"),
        .application = text("Type"),
        .description = text("Description"),
        .people = text("People"),
        .subject = item->Subject(),
        .body = item->Body() };
}

}
