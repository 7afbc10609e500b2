#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/ComboBox.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A text box with a list as a plain model. A choice from the list is a click and no change, whether a person or code
/// makes it; a text is a change and no click, and takes the selection away.
class ComboBoxModel final : public ControlModel<ComboBox>
{
public:
    using ControlModel::ControlModel;

    void AddItem(const std::string& text) override;
    std::string Text() const override { return mText; }
    void SetText(const std::string& text) override;
    std::int32_t ListIndex() const override { return mListIndex; }
    void Clear() override;
    void SetListIndex(std::int32_t index) override;
    Subscription Subscribe(ComboBoxEvents events) override { return mEvents.Subscribe(std::move(events)); }
    void Reset() override;

    /// The entries of the list.
    const std::vector<std::string>& List() const { return mList; }
    /// A person picks the entry at a position from 0; an absent one, or a box that can't be worked, fails (5).
    void Choose(std::int32_t index);
    /// A person types a text in the place of the present one; a box that can't be worked fails (5).
    void Type(const std::string& text);

private:
    std::vector<std::string> mList;
    std::int32_t mListIndex = -1;
    EventSource<ComboBoxEvents> mEvents;
};

}
