#include "faults/Wrapped.h"

#include "faults/FaultPlan.h"
#include "host/store/FormTemplate.h"
#include "host/system/BitmapLoader.h"
#include "host/system/ExpatXml.h"
#include "host/system/HostClock.h"
#include "host/system/HostFileSystem.h"
#include "host/system/HostShell.h"
#include "host/system/TomlRegistry.h"
#include "host/windows/HostApplication.h"
#include "platform/objectmodel/Folders.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestMailbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

/// A call of a member, by the name under which it can fail.
using NamedCall = std::pair<std::string, std::function<void()>>;

}

class WrappedTest : public testing::Test
{
protected:
    /// Each call fails when its name is planned to, and only then; with a fault in the way it never reaches the object.
    void ExpectFaults(const std::vector<NamedCall>& calls)
    {
        for (const auto& [name, call] : calls) {
            mPlan->Add({ .call = name, .failure = Failure(4711, name) });
            const auto before = mPlan->CallCount();
            EXPECT_EQ(FailureNumber(call), 4711) << name;
            EXPECT_EQ(mPlan->CallCount(), before + 1) << name;
            EXPECT_NE(FailureNumber(call), 4711) << name;
        }
    }
    Ref<FaultPlan> mPlan = MakeRef<FaultPlan>();
    /// A mailbox with an item in its calendar.
    static Ref<Mailbox> MailboxWithItem()
    {
        auto mailbox = OpenTestMailbox();
        NewTestItem(mailbox, "a")->Save();
        return mailbox;
    }
    /// A host with a window on the calendar.
    static Ref<HostApplication> HostWithExplorer(const Ref<Mailbox>& mailbox)
    {
        auto host = MakeRef<HostApplication>(mailbox);
        host->OpenExplorer(mailbox->FolderByPath("Calendar"));
        return host;
    }

    Ref<Mailbox> mMailbox = MailboxWithItem();
    Ref<HostApplication> mHost = HostWithExplorer(mMailbox);
    Ref<Application> mApplication = Wrapped(Ref<Application>(mHost), mPlan);
    Ref<NameSpace> mSession = mApplication->GetNamespace("MAPI");
    Ref<MAPIFolder> mCalendar = mSession->GetDefaultFolder(DefaultFolder::Calendar);
    Ref<AppointmentItem> mItem = mCalendar->Items()->Item(1).As<AppointmentItem>();
    Ref<Explorer> mExplorer = mApplication->Explorers()->Item(1);
};

TEST_F(WrappedTest, Application_Members_CanFail)
{
    const auto application = mApplication;
    ExpectFaults({ { "Application.Version", [=] { application->Version(); } },
        { "Application.Explorers", [=] { application->Explorers(); } },
        { "Application.Inspectors", [=] { application->Inspectors(); } },
        { "Application.GetNamespace:MAPI", [=] { application->GetNamespace("MAPI"); } },
        { "Application.ActiveExplorer", [=] { application->ActiveExplorer(); } },
        { "Application.ActiveInspector", [=] { application->ActiveInspector(); } },
        { "Application.CreateItem", [=] { application->CreateItem(); } },
        { "Application.CreateItemFromTemplate", [=] { application->CreateItemFromTemplate("/a.oft", nullptr); } },
        { "Application.Subscribe", [=] { application->Subscribe({}); } },
        { "NameSpace.GetDefaultFolder:9",
            [session = mSession] { session->GetDefaultFolder(DefaultFolder::Calendar); } },
        { "NameSpace.Folders", [session = mSession] { session->Folders(); } } });
}

TEST_F(WrappedTest, Folders_Members_CanFail)
{
    const auto folder = mCalendar;
    const auto folders = folder->Folders();
    const auto items = folder->Items();
    const auto views = folder->Views();
    const auto view = views->Item(1);
    ExpectFaults({ { "MAPIFolder.EntryID", [=] { folder->EntryID(); } }, { "MAPIFolder.Name", [=] { folder->Name(); } },
        { "MAPIFolder.FullFolderPath", [=] { folder->FullFolderPath(); } },
        { "MAPIFolder.Folders", [=] { folder->Folders(); } }, { "MAPIFolder.Items", [=] { folder->Items(); } },
        { "MAPIFolder.Views", [=] { folder->Views(); } }, { "Folders.Count", [=] { folders->Count(); } },
        { "Folders.Item:1", [=] { folders->Item(1); } }, { "Folders.Item:A", [=] { folders->ItemNamed("a"); } },
        { "Folders.Add", [=] { folders->Add("A", DefaultFolder::Calendar); } },
        { "Items.Count", [=] { items->Count(); } }, { "Items.Item", [=] { items->Item(1); } },
        { "Items.Add:IPM.Appointment", [=] { items->Add("IPM.Appointment"); } },
        { "Items.Restrict", [=] { items->Restrict("[Subject] = 'a'"); } },
        { "Items.Find", [=] { items->Find("[Subject] = 'a'"); } },
        { "Items.Sort", [=] { items->Sort("[Start]", false); } }, { "Items.Subscribe", [=] { items->Subscribe({}); } },
        { "Views.Count", [=] { views->Count(); } }, { "Views.Item", [=] { views->Item(1); } },
        { "Views.Item:A", [=] { views->ItemNamed("A"); } },
        { "Views.Add", [=] { views->Add("A", ViewType::Table, ViewSaveOption::ThisFolderEveryone); } },
        { "View.Name", [=] { view->Name(); } }, { "View.ViewType", [=] { view->ViewType(); } },
        { "View.XML", [=] { view->XML(); } }, { "View.XML", [=] { view->SetXML("<view/>"); } },
        { "View.Save", [=] { view->Save(); } } });
}

TEST_F(WrappedTest, Appointment_Members_CanFail)
{
    const auto item = mItem;
    const auto inbox = mSession->GetDefaultFolder(DefaultFolder::Inbox);
    ExpectFaults({ { "AppointmentItem.Class", [=] { item->Class(); } },
        { "OutlookItem.MessageClass", [=] { item->MessageClass(); } },
        { "AppointmentItem.EntryID", [=] { item->EntryID(); } }, { "OutlookItem.Subject", [=] { item->Subject(); } },
        { "AppointmentItem.Subject", [=] { item->SetSubject("b"); } },
        { "AppointmentItem.Body", [=] { item->Body(); } }, { "AppointmentItem.Body", [=] { item->SetBody("b"); } },
        { "AppointmentItem.Start", [=] { item->Start(); } },
        { "AppointmentItem.Start", [=] { item->SetStart(Date()); } }, { "AppointmentItem.End", [=] { item->End(); } },
        { "AppointmentItem.End", [=] { item->SetEnd(Date()); } },
        { "AppointmentItem.Duration", [=] { item->Duration(); } },
        { "AppointmentItem.Duration", [=] { item->SetDuration(5); } },
        { "AppointmentItem.Mileage", [=] { item->Mileage(); } },
        { "AppointmentItem.Mileage", [=] { item->SetMileage("b"); } },
        { "AppointmentItem.BillingInformation", [=] { item->BillingInformation(); } },
        { "AppointmentItem.BillingInformation", [=] { item->SetBillingInformation("b"); } },
        { "AppointmentItem.IsRecurring", [=] { item->IsRecurring(); } },
        { "AppointmentItem.Parent", [=] { item->Parent(); } },
        { "AppointmentItem.UserProperties", [=] { item->UserProperties(); } },
        { "AppointmentItem.FormDescription", [=] { item->FormDescription(); } },
        { "AppointmentItem.Save", [=] { item->Save(); } },
        { "AppointmentItem.Close", [=] { item->Close(CloseMode::Discard); } },
        { "AppointmentItem.Display", [=] { item->Display(); } }, { "AppointmentItem.Copy", [=] { item->Copy(); } },
        { "AppointmentItem.Subscribe", [=] { item->Subscribe({}); } },
        { "AppointmentItem.Move", [=] { item->Move(inbox); } },
        { "AppointmentItem.Delete", [=] { item->Delete(); } } });
}

TEST_F(WrappedTest, PropertiesAndForms_Members_CanFail)
{
    const auto properties = mItem->UserProperties();
    const auto property = properties->Add("Project", PropertyType::Text, true);
    FormTemplate form;
    form.messageClass = "IPM.Appointment.TDActivity1";
    const auto description
        = Wrapped(mMailbox->NewItem(mMailbox->FolderByPath("Calendar"), form)->FormDescription(), mPlan);
    ExpectFaults({ { "UserProperties.Item:Project", [=] { properties->Item("Project"); } },
        { "UserProperties.Add:Project", [=] { properties->Add("Project", PropertyType::Text, true); } },
        { "UserProperty.Name", [=] { property->Name(); } }, { "UserProperty.Value", [=] { property->Value(); } },
        { "UserProperty.Value", [=] { property->SetValue("Plan"); } },
        { "FormDescription.Class", [=] { description->Class(); } },
        { "FormDescription.DisplayName", [=] { description->SetDisplayName("Activity"); } },
        { "FormDescription.MessageClass", [=] { description->MessageClass(); } },
        { "FormDescription.PublishForm", [=] { description->PublishForm(FormRegistry::Personal); } } });
}

TEST_F(WrappedTest, Mail_Members_CanFail)
{
    const auto mail = mApplication->CreateItem();
    const auto attachments = mail->Attachments();
    const auto recipients = mail->Recipients();
    ExpectFaults({ { "MailItem.Subject", [=] { mail->SetSubject("a"); } },
        { "OutlookItem.Subject", [=] { mail->Subject(); } }, { "MailItem.Body", [=] { mail->Body(); } },
        { "MailItem.Body", [=] { mail->SetBody("a"); } }, { "MailItem.HTMLBody", [=] { mail->HTMLBody(); } },
        { "MailItem.HTMLBody", [=] { mail->SetHTMLBody("a"); } },
        { "MailItem.Attachments", [=] { mail->Attachments(); } },
        { "MailItem.Recipients", [=] { mail->Recipients(); } },
        { "Attachments.Add", [=] { attachments->Add("/nonexistent"); } },
        { "Recipients.Add", [=] { recipients->Add("a@b.example"); } },
        { "MailItem.Display", [=] { mail->Display(); } } });
    EXPECT_EQ(mHost->MadeMails().front()->Draft().recipients, std::vector<std::string> { "a@b.example" });
}

TEST_F(WrappedTest, Windows_Members_CanFail)
{
    const auto explorer = mExplorer;
    const auto explorers = mApplication->Explorers();
    const auto inspectors = mApplication->Inspectors();
    mItem->Display();
    const auto inspector = inspectors->Item(1);
    const auto selection = explorer->Selection();
    const auto pages = inspector->ModifiedFormPages();
    ExpectFaults({ { "Explorers.Count", [=] { explorers->Count(); } },
        { "Explorers.Item", [=] { explorers->Item(1); } }, { "Explorers.Subscribe", [=] { explorers->Subscribe({}); } },
        { "Explorer.Caption", [=] { explorer->Caption(); } },
        { "Explorer.CurrentFolder", [=] { explorer->CurrentFolder(); } },
        { "Explorer.CurrentFolder", [=] { explorer->SetCurrentFolder(explorer->CurrentFolder()); } },
        { "Explorer.CurrentView", [=] { explorer->CurrentView(); } },
        { "Explorer.CurrentView", [=] { explorer->SetCurrentView("A"); } },
        { "Explorer.Selection", [=] { explorer->Selection(); } },
        { "Explorer.IsFolderSelected", [=] { explorer->IsFolderSelected(nullptr); } },
        { "Explorer.CommandBars", [=] { explorer->CommandBars(); } },
        { "Explorer.Subscribe", [=] { explorer->Subscribe({}); } }, { "Selection.Count", [=] { selection->Count(); } },
        { "Selection.Item", [=] { selection->Item(1); } }, { "Inspectors.Count", [=] { inspectors->Count(); } },
        { "Inspectors.Item", [=] { inspectors->Item(1); } },
        { "Inspectors.Subscribe", [=] { inspectors->Subscribe({}); } },
        { "Inspector.Caption", [=] { inspector->Caption(); } },
        { "Inspector.CurrentItem", [=] { inspector->CurrentItem(); } },
        { "Inspector.CommandBars", [=] { inspector->CommandBars(); } },
        { "Inspector.ModifiedFormPages", [=] { inspector->ModifiedFormPages(); } },
        { "Inspector.Subscribe", [=] { inspector->Subscribe({}); } },
        { "Pages.Item:Activity", [=] { pages->Item("Activity"); } } });
}

TEST_F(WrappedTest, CommandBars_Members_CanFail)
{
    const auto bars = mExplorer->CommandBars();
    const auto bar = bars->ItemNamed("Standard");
    const auto controls = bar->Controls();
    const auto control = controls->Add({ .type = CommandBarControlType::Button, .parameter = "p" });
    const auto button = control.As<CommandBarButton>();
    const auto popup = controls->Add({ .type = CommandBarControlType::Popup }).As<CommandBarPopup>();
    ASSERT_TRUE(button);
    ASSERT_TRUE(popup);
    ExpectFaults({ { "CommandBars.Count", [=] { bars->Count(); } }, { "CommandBars.Item", [=] { bars->Item(1); } },
        { "CommandBars.Item:Standard", [=] { bars->ItemNamed("Standard"); } },
        { "CommandBars.Add:Mine", [=] { bars->Add("Mine"); } }, { "CommandBar.Name", [=] { bar->Name(); } },
        { "CommandBar.Position", [=] { bar->Position(); } },
        { "CommandBar.Position", [=] { bar->SetPosition(BarPosition::Top); } },
        { "CommandBar.Visible", [=] { bar->Visible(); } }, { "CommandBar.Visible", [=] { bar->SetVisible(true); } },
        { "CommandBar.Controls", [=] { bar->Controls(); } },
        { "CommandBar.FindControl:984", [=] { bar->FindControl({ .id = 984 }); } },
        { "CommandBar.FindControl:t", [=] { bar->FindControl({ .tag = "t" }); } },
        { "CommandBar.Delete", [=] { bar->Delete(); } }, { "CommandBarControls.Count", [=] { controls->Count(); } },
        { "CommandBarControls.Item", [=] { controls->Item(1); } },
        { "CommandBarControls.Item:x", [=] { controls->ItemCaptioned("x"); } },
        { "CommandBarControls.Add:p", [=] { controls->Add({ .parameter = "p" }); } },
        { "CommandBarControl.Type", [=] { button->Type(); } }, { "CommandBarButton.Id", [=] { button->Id(); } },
        { "CommandBarControl.Caption", [=] { button->Caption(); } },
        { "CommandBarButton.Caption", [=] { button->SetCaption("c"); } },
        { "CommandBarButton.Tag", [=] { button->Tag(); } }, { "CommandBarButton.Tag", [=] { button->SetTag("t"); } },
        { "CommandBarButton.Enabled", [=] { button->Enabled(); } },
        { "CommandBarButton.Enabled", [=] { button->SetEnabled(true); } },
        { "CommandBarButton.Visible", [=] { button->Visible(); } },
        { "CommandBarButton.Visible", [=] { button->SetVisible(true); } },
        { "CommandBarButton.BeginGroup", [=] { button->BeginGroup(); } },
        { "CommandBarButton.BeginGroup", [=] { button->SetBeginGroup(true); } },
        { "CommandBarButton.FaceId", [=] { button->FaceId(); } },
        { "CommandBarButton.Style", [=] { button->Style(); } },
        { "CommandBarButton.Style", [=] { button->SetStyle(ButtonStyle::IconAndCaption); } },
        { "CommandBarButton.Picture", [=] { button->SetPicture(nullptr); } },
        { "CommandBarButton.Mask", [=] { button->SetMask(nullptr); } },
        { "CommandBarButton.Subscribe", [=] { button->Subscribe({}); } },
        { "CommandBarControl.Copy", [=] { button->Copy(bar); } },
        { "CommandBarPopup.Controls", [=] { popup->Controls(); } },
        { "CommandBarPopup.CommandBar", [=] { popup->CommandBar(); } },
        { "CommandBarPopup.Caption", [=] { popup->SetCaption("c"); } },
        { "CommandBarControl.Delete", [=] { button->Delete(); } } });
}

TEST_F(WrappedTest, Platform_Members_CanFail)
{
    const TempFolder folder;
    const auto file = folder.Write("a.txt", "a\r\nb\r\n");
    Platform own;
    own.fileSystem = MakeRef<HostFileSystem>(folder.Path());
    own.registry = MakeRef<TomlRegistry>(folder.Path("registry.toml"));
    own.pictures = MakeRef<BitmapLoader>();
    own.shell = MakeRef<HostShell>([](const std::string&) {});
    own.xml = MakeRef<ExpatXmlFactory>();
    own.clock = MakeRef<HostClock>();
    const auto platform = Wrapped(own, mPlan);
    EXPECT_EQ(platform.clock, own.clock);
    const auto files = platform.fileSystem;
    const auto reading = files->OpenTextFile(file, OpenMode::Reading, false);
    const auto writing = files->OpenTextFile(folder.Path("b.txt"), OpenMode::Writing, true);
    const auto xml = platform.xml->NewDocument();
    xml->LoadXML("<a><b>c</b></a>");
    const auto node = xml->SelectSingleNode("a/b");
    const auto path = folder.Path();
    ExpectFaults({ { "FileSystem.GetSpecialFolder", [=] { files->GetSpecialFolder(SpecialFolder::Temporary); } },
        { "FileSystem.BuildPath", [=] { files->BuildPath("a", "b"); } },
        { "FileSystem.FolderExists", [=] { files->FolderExists(path); } },
        { "FileSystem.CreateFolder:c", [=] { files->CreateFolder(path + "/c"); } },
        { "FileSystem.GetFolder", [=] { files->GetFolder(path); } },
        { "FileSystem.FileExists:a.txt", [=] { files->FileExists(file); } },
        { "FileSystemObject.GetFile", [=] { files->GetFile(file); } },
        { "FileSystem.CopyFile", [=] { files->CopyFile(file, path + "/d.txt", true); } },
        { "FileSystem.MoveFile", [=] { files->MoveFile(path + "/d.txt", path + "/e.txt"); } },
        { "FileSystem.DeleteFile:e.txt", [=] { files->DeleteFile(path + "/e.txt", true); } },
        { "FileSystem.OpenTextFile:a.txt", [=] { files->OpenTextFile(file, OpenMode::Reading, false); } },
        { "TextStream.ReadLine", [=] { reading->ReadLine(); } }, { "TextStream.ReadAll", [=] { reading->ReadAll(); } },
        { "TextStream.Write", [=] { writing->Write("a"); } },
        { "TextStream.WriteLine", [=] { writing->WriteLine("a"); } }, { "TextStream.Close", [=] { writing->Close(); } },
        { "Registry.Read:A", [=] { platform.registry->Read(Hive::CurrentUser, "K", "A", RegistryAccess::Query); } },
        { "Registry.Write:A", [=] { platform.registry->Write(Hive::CurrentUser, "K", "A", "a"); } },
        { "PictureLoader.Load", [=] { platform.pictures->Load(path + "/none"); } },
        { "Shell.Open", [=] { platform.shell->Open("a"); } }, { "Shell.ThreadId", [=] { platform.shell->ThreadId(); } },
        { "XmlFactory.NewDocument", [=] { platform.xml->NewDocument(); } },
        { "XmlDocument.LoadXML", [=] { xml->LoadXML("<a><b>c</b></a>"); } },
        { "XmlDocument.IsEmpty", [=] { xml->IsEmpty(); } }, { "XmlDocument.Xml", [=] { xml->Xml(); } },
        { "XmlNode.SelectSingleNode:a/b", [=] { xml->SelectSingleNode("a/b"); } },
        { "XmlNode.Text", [=] { node->Text(); } }, { "XmlNode.Text", [=] { node->SetText("d"); } } });
    EXPECT_EQ(node->Text(), "d");
}

TEST_F(WrappedTest, Wrapped_Nothing_StaysNothing)
{
    EXPECT_FALSE(Wrapped(Ref<OutlookItem>(), mPlan));
    EXPECT_FALSE(Wrapped(Ref<CommandBarControl>(), mPlan));
    EXPECT_FALSE(Wrapped(Ref<Explorer>(), mPlan));
    EXPECT_FALSE(mApplication->ActiveInspector());
    EXPECT_FALSE(mCalendar->Views()->ItemNamed("none"));
    EXPECT_FALSE(mItem->UserProperties()->Item("none"));
}

TEST_F(WrappedTest, Wrapped_Objects_AreOfTheirKindAndHandedInAsThemselves)
{
    EXPECT_TRUE(mExplorer->IsFolderSelected(mCalendar));
    mExplorer->SetCurrentFolder(mSession->GetDefaultFolder(DefaultFolder::Inbox));
    EXPECT_FALSE(mExplorer->IsFolderSelected(mCalendar));
    EXPECT_FALSE(mCalendar->Items()->Item(1).As<MailItem>());
    EXPECT_EQ(mItem->Move(mSession->GetDefaultFolder(DefaultFolder::Inbox))->Parent()->Name(), "Inbox");
    const auto bars = mExplorer->CommandBars();
    const auto help = bars->ItemNamed("Standard")->FindControl({ .id = 984 });
    const auto mine = bars->Add("Mine");
    EXPECT_EQ(help->Copy(mine)->Id(), 984);
    EXPECT_EQ(mine->Controls()->Count(), 1);
}

TEST_F(WrappedTest, Events_Objects_AreWrapped)
{
    std::vector<std::string> heard;
    const auto note = [&](const std::string& text) { heard.push_back(text); };
    const auto items = mCalendar->Items();
    const auto arrived = items->Subscribe({ .ItemAdd = [&](const auto& item) {
        mPlan->Add({ .call = "OutlookItem.Subject" });
        note("item " + std::to_string(FailureNumber([&] { item->Subject(); })));
    } });
    const auto opened = mApplication->Explorers()->Subscribe({ .NewExplorer = [&](const auto& explorer) {
        mPlan->Add({ .call = "Explorer.Caption" });
        note("explorer " + std::to_string(FailureNumber([&] { explorer->Caption(); })));
    } });
    const auto shown = mApplication->Inspectors()->Subscribe({ .NewInspector = [&](const auto& inspector) {
        mPlan->Add({ .call = "Inspector.Caption" });
        note("inspector " + std::to_string(FailureNumber([&] { inspector->Caption(); })));
    } });
    const auto button = mExplorer->CommandBars()->ItemNamed("Standard")->Controls()->Add({}).As<CommandBarButton>();
    const auto clicked = button->Subscribe({ .Click = [&](const auto& control, bool& cancelDefault) {
        mPlan->Add({ .call = "CommandBarButton.Caption" });
        note("button " + std::to_string(FailureNumber([&] { control->Caption(); })));
        cancelDefault = true;
    } });
    NewTestItem(mMailbox, "b")->Save();
    mMailbox->DeliverEvents();
    mHost->OpenExplorer(mMailbox->FolderByPath("Inbox"));
    mItem->Display();
    mHost->OpenExplorers().front()->Bars()->All().front()->Entries().back()->Click();
    EXPECT_EQ(heard, (std::vector<std::string> { "item 440", "explorer 440", "inspector 440", "button 440" }));
}

TEST_F(WrappedTest, Events_NoCallback_AreLetGo)
{
    const auto items = mCalendar->Items();
    const auto arrived = items->Subscribe({});
    const auto opened = mApplication->Explorers()->Subscribe({});
    const auto shown = mApplication->Inspectors()->Subscribe({});
    NewTestItem(mMailbox, "b")->Save();
    mMailbox->DeliverEvents();
    mHost->OpenExplorer(mMailbox->FolderByPath("Inbox"));
    mItem->Display();
    EXPECT_EQ(mApplication->Explorers()->Count(), 2);
    EXPECT_EQ(mApplication->Inspectors()->Count(), 1);
}

}
