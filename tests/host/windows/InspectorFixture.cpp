#include "host/windows/InspectorFixture.h"

namespace tempodial {

InspectorFixture::InspectorFixture()
{
    const auto item
        = mApplication->CreateItemFromTemplate(std::string(TEMPODIAL_SHARE_DIR) + "/WorkLogForm.oft", mCalendar);
    item->FormDescription()->SetDisplayName("Activity");
    item->FormDescription()->PublishForm(FormRegistry::Personal);
}

Ref<StoreItem> InspectorFixture::NewActivity(const std::string& subject) const
{
    auto item = mCalendar->Items()->Add(ActivityClass).As<StoreItem>();
    item->SetSubject(subject);
    item->SetStart(At(9));
    item->SetEnd(At(9).AddMinutes(5));
    item->UserProperties()->Item("Project")->SetValue("Garden");
    item->Save();
    return item;
}

Ref<StoreItem> InspectorFixture::NewAppointment(const std::string& subject) const
{
    auto item = NewTestItem(mMailbox, subject);
    item->Save();
    return item;
}

Date InspectorFixture::At(int hour)
{
    return Date::FromParts({ 2006, 10, 10, hour, 0, 0 });
}

ItemData InspectorFixture::Stored(const Ref<StoreItem>& item) const
{
    return mMailbox->Stored(item);
}

Subscription InspectorFixture::Note(
    const Ref<StoreItem>& item, std::function<void(const std::string& word, bool& cancel)> action)
{
    const auto noting = [this, action = std::move(action)](const char* word) {
        return [this, action, word](bool& cancel) {
            mHeard.emplace_back(word);
            if (action) {
                action(word, cancel);
            }
        };
    };
    return item->Subscribe({ noting("open"), noting("write"), noting("close") });
}

Subscription InspectorFixture::Note(const Ref<HostInspector>& inspector, std::function<void()> action)
{
    return inspector->Subscribe({ [this, number = inspector->Number(), action = std::move(action)] {
        mHeard.push_back("gone " + std::to_string(number));
        if (action) {
            action();
        }
    } });
}

Subscription InspectorFixture::OnNew(std::function<void(const Ref<HostInspector>& inspector)> action) const
{
    return mApplication->Inspectors()->Subscribe(
        { [action = std::move(action)](const Ref<Inspector>& inspector) { action(inspector.As<HostInspector>()); } });
}

void InspectorFixture::Click(const Ref<HostInspector>& inspector, std::int32_t id)
{
    inspector->CommandBars()->ItemNamed("Standard")->FindControl({ id, {} }).As<HostCommandBarControl>()->Click();
}

}
