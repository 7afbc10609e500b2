#include "support/DriverFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

}

class MailboxCommandsTest : public DriverFixture
{
protected:
    std::vector<std::string> Paths()
    {
        std::vector<std::string> paths;
        const auto answer = Do({ { "do", "folders" } });
        for (const auto& folder : answer.at("folders")) {
            paths.push_back(folder.at("path"));
        }
        return paths;
    }
    std::string Create(const Json& more = Json::object())
    {
        Json command { { "do", "item.create" }, { "folder", "Calendar" }, { "subject", "a" },
            { "start", "2006-10-10T09:00:00" }, { "end", "2006-10-10T09:05:00" } };
        command.update(more);
        return Do(command).at("entryId");
    }
    Json Items(const std::string& folder = "Calendar")
    {
        return Do({ { "do", "items" }, { "folder", folder } }).at("items");
    }
    Json View(const std::string& name)
    {
        const auto answer = Do({ { "do", "views" }, { "folder", "Calendar" } });
        for (const auto& view : answer.at("views")) {
            if (view.at("name") == name) {
                return view;
            }
        }
        return nullptr;
    }
};

TEST_F(MailboxCommandsTest, Folders_Changes_AreSeen)
{
    EXPECT_THAT(Paths(), ElementsAre("Inbox", "Calendar", "Drafts"));
    Do({ { "do", "folder.add" }, { "path", "Calendar/Old" } });
    Do({ { "do", "folder.add" }, { "path", "Calendar/Old/Older" } });
    Do({ { "do", "folder.add" }, { "path", "Archive" } });
    EXPECT_THAT(Paths(), ElementsAre("Inbox", "Calendar", "Calendar/Old", "Calendar/Old/Older", "Drafts", "Archive"));
    Do({ { "do", "folder.rename" }, { "path", "Calendar/Old" }, { "name", "New" } });
    Do({ { "do", "folder.move" }, { "path", "Calendar/New" }, { "to", "Archive" } });
    Do({ { "do", "folder.move" }, { "path", "Archive/New/Older" }, { "to", "" } });
    EXPECT_THAT(Paths(), ElementsAre("Inbox", "Calendar", "Drafts", "Older", "Archive", "Archive/New"));
    Do({ { "do", "folder.delete" }, { "path", "Archive" } });
    EXPECT_THAT(Paths(), ElementsAre("Inbox", "Calendar", "Drafts", "Older"));
}

TEST_F(MailboxCommandsTest, Folders_ItemsAndIdentity_AreTold)
{
    Create();
    Create();
    const auto folders = Do({ { "do", "folders" } }).at("folders");
    EXPECT_EQ(folders[1].at("items"), 2);
    EXPECT_EQ(folders[0].at("items"), 0);
    Do({ { "do", "folder.rename" }, { "path", "Calendar" }, { "name", "Days" } });
    EXPECT_EQ(Do({ { "do", "folders" } }).at("folders")[1].at("entryId"), folders[1].at("entryId"));
}

TEST_F(MailboxCommandsTest, FolderAdd_BelowACalendar_IsACalendar)
{
    Do({ { "do", "folder.add" }, { "path", "Calendar/Old" } });
    EXPECT_EQ(Do({ { "do", "views" }, { "folder", "Calendar/Old" } }).at("views")[0].at("type"), 2);
}

TEST_F(MailboxCommandsTest, FolderCommands_BadFields_AreRefused)
{
    EXPECT_THAT(Refused({ { "do", "folder.add" }, { "path", "Nowhere/A" } }), HasSubstr("no folder \"Nowhere\""));
    EXPECT_THAT(Refused({ { "do", "folder.add" }, { "path", "Inbox" } }), HasSubstr("already"));
    EXPECT_THAT(Refused({ { "do", "folder.add" }, { "path", "" } }), HasSubstr("can't be named"));
    EXPECT_THAT(Refused({ { "do", "folder.delete" }, { "path", "Nowhere" } }), HasSubstr("no folder"));
    EXPECT_THAT(Refused({ { "do", "folder.delete" }, { "path", "" } }), HasSubstr("store"));
    EXPECT_THAT(
        Refused({ { "do", "folder.move" }, { "path", "Inbox" }, { "to", "Inbox" } }), HasSubstr("below itself"));
    EXPECT_THAT(Refused({ { "do", "items" }, { "folder", "Nowhere" } }), HasSubstr("no folder"));
}

TEST_F(MailboxCommandsTest, ItemCreate_Fields_AreSaved)
{
    const auto id = Create({ { "body", "b\r\nc" },
        { "properties",
            { { "Project", "Plan" }, { "ApplyPast", true }, { "Day", "2006-10-10T00:00:00" }, { "Foreign", "x" } } } });
    const Json expected { { "id", 1 }, { "entryId", id }, { "messageClass", "IPM.Appointment" }, { "subject", "a" },
        { "start", "2006-10-10T09:00:00" }, { "end", "2006-10-10T09:05:00" }, { "duration", 5 }, { "body", "b\r\nc" },
        { "mileage", "" }, { "billingInformation", "" },
        { "properties", { { "Day", "2006-10-10T00:00:00" }, { "Project", "Plan" }, { "ApplyPast", true } } } };
    EXPECT_EQ(Items(), Json::array({ expected }));
    Restart();
    EXPECT_EQ(Items(), Json::array({ expected }));
}

TEST_F(MailboxCommandsTest, ItemCreate_Activity_HasTheFieldsOfItsForm)
{
    Do({ { "do", "start" } });
    Create({ { "folder", "Calendar/Tempodial" }, { "messageClass", "IPM.Appointment.TDActivity1" },
        { "properties", { { "Project", "Plan" } } } });
    const auto item = Do({ { "do", "items" } }).at("items").at(0);
    EXPECT_EQ(item.at("messageClass"), "IPM.Appointment.TDActivity1");
    EXPECT_EQ(item.at("properties").at("Project"), "Plan");
    EXPECT_EQ(item.at("properties").at("ApplyPast"), false);
}

TEST_F(MailboxCommandsTest, ItemCreate_BadFields_AreRefusedAndMakeNothing)
{
    Json command { { "do", "item.create" }, { "folder", "Calendar" }, { "start", "2006-10-10T09:00:00" },
        { "end", "2006-10-10T08:05:00" } };
    EXPECT_THAT(Refused(command), HasSubstr("end before"));
    command["end"] = "noon";
    EXPECT_THAT(Refused(command), HasSubstr("YYYY-MM-DDTHH:MM:SS"));
    command["end"] = "2006-10-10T09:05";
    command["properties"] = "a";
    EXPECT_THAT(Refused(command), HasSubstr("\"properties\" must be an object"));
    for (const auto& value : { Json(7), Json(nullptr), Json::array(), Json("noon") }) {
        command["properties"] = { { "Day", value } };
        EXPECT_THAT(Refused(command), HasSubstr("Day")) << value;
    }
    EXPECT_EQ(Items(), Json::array());
}

TEST_F(MailboxCommandsTest, Items_Several_AreInOrderOfStart)
{
    Create({ { "subject", "b" }, { "start", "2006-10-10T09:00:30" }, { "end", "2006-10-10T09:10:00" } });
    Create({ { "subject", "a" } });
    Create({ { "subject", "c" }, { "start", "2006-10-11T08:00:00" }, { "end", "2006-10-11T09:10:00" } });
    std::vector<std::string> subjects;
    for (const auto& item : Items()) {
        subjects.push_back(item.at("subject"));
    }
    EXPECT_THAT(subjects, ElementsAre("a", "b", "c"));
}

TEST_F(MailboxCommandsTest, ItemChange_Times_AreDragged)
{
    const auto id = Create();
    Do({ { "do", "item.change" }, { "entryId", id }, { "start", "2006-10-11T10:00:00" },
        { "end", "2006-10-11T10:30:00" } });
    EXPECT_EQ(Items()[0].at("start"), "2006-10-11T10:00:00");
    EXPECT_EQ(Items()[0].at("end"), "2006-10-11T10:30:00");
    Do({ { "do", "item.change" }, { "entryId", id }, { "start", "2006-10-11T11:00:00" } });
    EXPECT_EQ(Items()[0].at("end"), "2006-10-11T11:30:00");
    Do({ { "do", "item.change" }, { "entryId", id }, { "end", "2006-10-11T11:10:00" } });
    EXPECT_EQ(Items()[0].at("start"), "2006-10-11T11:00:00");
    EXPECT_EQ(Items()[0].at("duration"), 10);
    Refused({ { "do", "item.change" }, { "entryId", id }, { "end", "2006-10-11T10:10:00" } });
    EXPECT_EQ(Items()[0].at("duration"), 10);
    EXPECT_THAT(Refused({ { "do", "item.change" }, { "entryId", id } }), HasSubstr("\"start\""));
}

TEST_F(MailboxCommandsTest, ItemDelete_Item_IsGone)
{
    const auto id = Create();
    Do({ { "do", "item.delete" }, { "entryId", id } });
    EXPECT_EQ(Items(), Json::array());
    EXPECT_THAT(Refused({ { "do", "item.delete" }, { "entryId", id } }), HasSubstr("no item \"" + id));
    EXPECT_THAT(Refused({ { "do", "item.change" }, { "entryId", "" }, { "end", "2006-10-11T10:10:00" } }),
        HasSubstr("no item"));
}

TEST_F(MailboxCommandsTest, Views_Changes_AreSeen)
{
    const std::string xml = "<view type=\"calendar\"><viewname>Mine</viewname></view>";
    Do({ { "do", "view.set" }, { "folder", "Calendar" }, { "name", "Mine" }, { "type", 2 }, { "xml", xml } });
    EXPECT_EQ(View("Mine"), (Json { { "name", "Mine" }, { "type", 2 }, { "xml", xml } }));
    Do({ { "do", "view.set" }, { "folder", "Calendar" }, { "name", "Mine" }, { "xml", "<view/>" } });
    EXPECT_EQ(View("Mine"), (Json { { "name", "Mine" }, { "type", 2 }, { "xml", "<view/>" } }));
    Do({ { "do", "view.set" }, { "folder", "Calendar" }, { "name", "List" } });
    EXPECT_EQ(View("List").at("type"), 0);
    Restart();
    EXPECT_FALSE(View("List").is_null());
    Do({ { "do", "view.delete" }, { "folder", "Calendar" }, { "name", "Mine" } });
    EXPECT_TRUE(View("Mine").is_null());
}

TEST_F(MailboxCommandsTest, ViewCommands_BadFields_AreRefused)
{
    Json command { { "do", "view.set" }, { "folder", "Calendar" }, { "name", "Mine" }, { "xml", "<nothing/>" } };
    EXPECT_THAT(Refused(command), HasSubstr("no view definition"));
    command["type"] = 1;
    EXPECT_THAT(Refused(command), HasSubstr("no view of type 1"));
    EXPECT_TRUE(View("Mine").is_null());
    Refused({ { "do", "view.delete" }, { "folder", "Calendar" }, { "name", "Mine" } });
}

}
