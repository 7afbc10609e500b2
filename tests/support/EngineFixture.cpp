#include "support/EngineFixture.h"

#include "host/store/FormTemplate.h"

namespace tempodial {

EngineFixture::EngineFixture()
{
    mHost.clock->Set(mClock->Now());
    mClock = mHost.clock;
    mPlatform = mHost.platform;
    mRegistry->values[{ Hive::LocalMachine, ProductKey, "Install Directory" }] = mFolder.Path("install");
    mApplication->fromTemplate = [this](const std::string&, const Ref<MAPIFolder>& folder) {
        return mMailbox->NewItem(folder, FormTemplate { mFormClass, "", {}, "" });
    };
    mApplication->observer->told = [this](const std::string& use) { mWindowUses.push_back(use); };
    mMain->Initialize("Tempodial.Connect", mApplication);
    mLog = mMain->mTempodialDebugLog;
    ForgetTrace();
}

EngineFixture::~EngineFixture()
{
    mMain->Terminate();
}

Ref<MAPIFolder> EngineFixture::Calendar()
{
    return mNamespace->GetDefaultFolder(DefaultFolder::Calendar);
}

std::string EngineFixture::Registered(const std::string& value)
{
    return mRegistry->Read(Hive::CurrentUser, ProductKey, value, RegistryAccess::Query).ToText();
}

void EngineFixture::Register(const std::string& value, const std::string& text)
{
    mRegistry->Write(Hive::CurrentUser, ProductKey, value, text);
}

void EngineFixture::PublishForm()
{
    mMailbox->NewItem(Calendar(), FormTemplate { ActivityClass, "Activity", {}, "" })
        ->FormDescription()
        ->PublishForm(FormRegistry::Personal);
}

void EngineFixture::Install(const std::string& name, const std::string& content)
{
    std::filesystem::create_directories(mFolder.Path("install"));
    mFolder.Write("install/" + name, content);
}

void EngineFixture::Open(const Ref<AppointmentItem>& item)
{
    item->Display();
    ForgetTrace();
}

std::string EngineFixture::Property(const Ref<AppointmentItem>& item, const std::string& name)
{
    const auto property = item->UserProperties()->Item(name);
    return property ? property->Value().ToText() : "(absent)";
}

Date EngineFixture::At(int hour, int minute, int second)
{
    return Date::FromParts({ 2006, 10, 10, hour, minute, second });
}

}
