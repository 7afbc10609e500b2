#include "engine/outlook/InspectorFixture.h"

namespace tempodial {

InspectorFixture::InspectorFixture()
{
    mPlatform->registry = mRegistry;
    mPlatform->xml = MakeRef<ExpatXmlFactory>();
    mPlatform->shell = mShell;
    mPlatform->pictures = mPictures;
    mPlatform->forms = mForms;
    mPlatform->messageBox = mMessageBox;
    mPlatform->eventPump = mEventPump;
    mRegistry->values[{ Hive::LocalMachine, "Software\\Lindenfold\\Tempodial", "Install Directory" }]
        = TEMPODIAL_SHARE_DIR;
    mMailbox = Mailbox::Open(":memory:", mPlatform->formats, mPlatform->xml);
    mApplication = MakeRef<HostApplication>(mMailbox);
    mApplication->OpenExplorer(mMailbox->FolderByPath("Inbox"));
    mMain = MakeRef<TempodialMain>(mPlatform);
    mMain->Initialize("Tempodial.Connect", mApplication);
    mMain->TempodialMain_Run();
    mLog = mMain->mTempodialDebugLog;
    ForgetTrace();
}

InspectorFixture::~InspectorFixture()
{
    mMain->Terminate();
}

Ref<AppointmentItem> InspectorFixture::Activity(const std::string& description, const std::string& people,
    const std::string& project, const std::string& application, int day)
{
    const auto start = Date::FromParts({ 2006, 10, day, 9, 0, 0 });
    auto item = mMain->CreateCalendarItem(
        project, description, application, people, 10, start, start.AddMinutes(10), "", false);
    mMailbox->DeliverEvents();
    ForgetTrace();
    return item;
}

Ref<AppointmentItem> InspectorFixture::Appointment(const std::string& subject, const std::string& folder)
{
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.subject = subject;
    data.start = Date::FromParts({ 2006, 10, 10, 11, 0, 0 });
    data.end = data.start.AddMinutes(30);
    auto item = mMailbox->NewItem(mMailbox->FolderByPath(folder), data);
    item->Save();
    ForgetTrace();
    return item;
}

void InspectorFixture::AddProject(const std::string& name, const std::string& rule)
{
    mMain->UpdateorAddProject(name, rule, "", "", "2", false);
    ForgetTrace();
}

Ref<HostInspector> InspectorFixture::Open(const Ref<AppointmentItem>& item)
{
    return mApplication->OpenInspector(item.As<StoreItem>());
}

Ref<HostInspector> InspectorFixture::OpenAlone(
    const Ref<AppointmentItem>& item, const std::function<Ref<Inspector>(const Ref<Inspector>& inspector)>& shown)
{
    mAlone = MakeRef<HostApplication>(mMailbox);
    mMain->mApplication.Set(mAlone, {});
    const auto subscription = mAlone->Inspectors()->Subscribe({ .NewInspector = [&](const auto& inspector) {
        mCompanion = MakeRef<TempodialInspector>(mPlatform);
        mCompanion->Initialize(mLog, mMain, shown ? shown(inspector) : inspector, 90);
    } });
    return mAlone->OpenInspector(item.As<StoreItem>());
}

Ref<HostInspector> InspectorFixture::OpenObserved(const Ref<AppointmentItem>& item, const UseObserver& observer)
{
    return OpenAlone(item, [&](const auto& inspector) { return Observed(inspector, observer); });
}

void InspectorFixture::OnNewInspector(std::function<void(const Ref<Inspector>&)> handler)
{
    mNewInspector = mApplication->Inspectors()->Subscribe({ .NewInspector = std::move(handler) });
}

void InspectorFixture::Without(std::int32_t id)
{
    OnNewInspector([id](const Ref<Inspector>& inspector) {
        inspector->CommandBars()->ItemNamed("Standard")->FindControl({ .id = id, .tag = {} })->Delete();
    });
}

bool InspectorFixture::HasBar(const Ref<CommandBars>& bars, const std::string& name)
{
    for (std::int32_t i = 1; i <= bars->Count(); ++i) {
        if (bars->Item(i)->Name() == name) {
            return true;
        }
    }
    return false;
}

Ref<PageControl> InspectorFixture::Control(const Ref<HostInspector>& inspector, const std::string& name)
{
    return inspector->ModifiedFormPages()->Item("Activity")->Controls()->Item(name);
}

std::string InspectorFixture::Value(const Ref<HostInspector>& inspector, const std::string& name)
{
    return Control(inspector, name)->Value().ToText();
}

void InspectorFixture::Set(const Ref<HostInspector>& inspector, const std::string& name, const Variant& value)
{
    Control(inspector, name)->SetValue(value);
}

Ref<CommandBar> InspectorFixture::Bar(const Ref<HostInspector>& inspector, const std::string& name)
{
    return inspector->CommandBars()->ItemNamed(name);
}

std::vector<std::string> InspectorFixture::Controls(const Ref<HostInspector>& inspector)
{
    std::vector<std::string> texts;
    const auto controls = Bar(inspector, "Tempodial")->Controls();
    for (std::int32_t i = 1; i <= controls->Count(); ++i) {
        texts.push_back(std::to_string(controls->Item(i)->Id()) + " " + controls->Item(i)->Caption());
    }
    return texts;
}

void InspectorFixture::Click(const Ref<HostInspector>& inspector, const std::string& caption)
{
    Bar(inspector, "Tempodial")->Controls()->ItemCaptioned(caption).As<HostCommandBarButton>()->Click();
}

Variant InspectorFixture::Property(const Ref<AppointmentItem>& item, const std::string& name)
{
    return item->UserProperties()->Item(name)->Value();
}

std::string InspectorFixture::StoredProperty(const Ref<AppointmentItem>& item, const std::string& name)
{
    const auto stored = item.As<StoreItem>();
    const auto* before = stored->DataBefore();
    for (const auto& property : (before ? *before : stored->Data()).properties) {
        if (property.name == name) {
            return property.value.ToText();
        }
    }
    return "(absent)";
}

std::vector<std::string> InspectorFixture::Companions()
{
    std::vector<std::string> own;
    const std::string context = "TDInspector ";
    for (const auto& line : Traced()) {
        if (line.starts_with(context)) {
            own.push_back(line.substr(context.size()));
        }
    }
    return own;
}

}
