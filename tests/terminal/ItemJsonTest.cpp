#include "terminal/ItemJson.h"

#include "support/TestMailbox.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tempodial {

class ItemJsonTest : public testing::Test
{
protected:
    Ref<StoreItem> Saved(const ItemData& data) const
    {
        auto item = mMailbox->NewItem(mMailbox->FolderByPath("Calendar"), data);
        item->Save();
        return item;
    }
    static Date At(int hour, int minute, int second) { return Date::FromParts({ 2006, 10, 10, hour, minute, second }); }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
};

TEST_F(ItemJsonTest, ItemJson_Activity_HasAllFieldsInTheirForms)
{
    const auto item = Saved({ .messageClass = "IPM.Appointment.TDActivity1",
        .subject = "[Plan] Microsoft Word, \"plan.doc\"",
        .start = At(10, 0, 30),
        .end = At(10, 5, 29),
        .body = "a\r\nb",
        .mileage = "Plan",
        .billingInformation = "\"plan.doc\"",
        .properties = { { "Type", PropertyType::Text, Variant("Microsoft Word") },
            { "Day", PropertyType::DateTime, Variant(At(0, 0, 0)) }, { "Project", PropertyType::Text, Variant("Plan") },
            { "People", PropertyType::Text, Variant("") }, { "ApplyPast", PropertyType::YesNo, Variant(false) },
            { "Foreign", PropertyType::Text, Variant("x") } } });
    const nlohmann::ordered_json expected { { "id", 7 }, { "entryId", item->EntryID() },
        { "messageClass", "IPM.Appointment.TDActivity1" }, { "subject", "[Plan] Microsoft Word, \"plan.doc\"" },
        { "start", "2006-10-10T10:00:30" }, { "end", "2006-10-10T10:05:29" }, { "duration", 5 }, { "body", "a\r\nb" },
        { "mileage", "Plan" }, { "billingInformation", "\"plan.doc\"" },
        { "properties",
            { { "Type", "Microsoft Word" }, { "Day", "2006-10-10T00:00:00" }, { "Project", "Plan" }, { "People", "" },
                { "ApplyPast", false } } } };
    EXPECT_EQ(ItemJson(7, item).Value().dump(), expected.dump());
}

TEST_F(ItemJsonTest, ItemJson_PlainAppointment_HasNoProperties)
{
    const auto item = Saved({ .messageClass = "IPM.Appointment", .start = At(9, 0, 0), .end = At(9, 5, 0) });
    EXPECT_EQ(ItemJson(7, item).Value()["properties"].dump(), "{}");
}

}
