#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "forms/FormModel.h"
#include "platform/controls/Form.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace tempodial {

/// What whoever draws the forms of a factory wants to know.
struct FormModelFactoryEvents
{
    /// A form was made, not yet shown. Whoever draws it doesn't hold it, since it goes with its owner.
    std::function<void(FormModel& form)> Created;
};

/// Makes forms as plain models, and finds those that are alive for whoever shows them.
class FormModelFactory final : public FormFactory
{
public:
    /// A new form, not yet shown; its number counts from 1, and no other form gets it.
    Ref<Form> Create(const FormDefinition& definition) override;

    /// Subscribes whoever draws the forms.
    Subscription SubscribeToForms(FormModelFactoryEvents events) { return mEvents.Subscribe(std::move(events)); }
    /// The forms alive, in the order in which they were made.
    std::vector<Ref<FormModel>> Forms() const;
    /// The newest form of that class that can be seen, nothing when there is none.
    Ref<FormModel> NewestVisible(std::string_view className) const;
    /// The host ends: takes every form that can be seen off the screen for good, so that none holds its owner any more.
    void CloseAll() const;

private:
    std::vector<std::weak_ptr<FormModel>> mForms;
    std::int32_t mLastNumber = 0;
    EventSource<FormModelFactoryEvents> mEvents;
};

}
