#pragma once

#include "base/OrderedCollection.h"
#include "base/Ref.h"
#include "forms/ControlState.h"
#include "forms/FormFrame.h"
#include "platform/controls/Form.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A form as a plain model that a toolkit, a driver or a test can show and work; held by references only.
class FormModel final : public Form, public std::enable_shared_from_this<FormModel>
{
public:
    /// A form not yet shown, with a number of its own; two controls of one name fail (457).
    FormModel(FormDefinition definition, std::int32_t number);
    ~FormModel() override;
    FormModel(const FormModel&) = delete;
    FormModel& operator=(const FormModel&) = delete;

    std::string Caption() const override { return mCaption; }
    void SetCaption(const std::string& caption) override;
    bool Visible() const override { return mFrame->Visible(); }
    void Show() override;
    void Hide() override;
    void Unload() override;
    void BringToFront() override;
    void Refresh() override;
    Ref<tempodial::Control> Control(const std::string& name) override { return mControls.ItemKeyed(name); }
    Subscription Subscribe(FormEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// What tells it from other forms.
    std::int32_t Number() const { return mNumber; }
    /// The form as it was defined: class, rows and kinds.
    const FormDefinition& Definition() const { return mDefinition; }
    /// Subscribes whoever draws the form.
    Subscription SubscribeToChanges(FormModelEvents events) { return mFrame->Subscribe(std::move(events)); }
    /// A person closes the form by its frame: it is unloaded unless a listener refuses, who may hide it instead. True
    /// when it is off the screen then; a form that can't be seen fails (5).
    bool CloseByFrame();
    /// The host ends, which nobody can refuse: listeners hear of it as of the frame, and the form is unloaded. What a
    /// listener fails with passes through.
    void CloseForGood();

private:
    FormDefinition mDefinition;
    std::int32_t mNumber;
    std::string mCaption;
    std::shared_ptr<FormFrame> mFrame = std::make_shared<FormFrame>();
    OrderedCollection<Ref<tempodial::Control>> mControls;
    EventSource<FormEvents> mEvents;
};

}
