#include "forms/ComboBoxModel.h"

#include "base/Failure.h"

namespace tempodial {

void ComboBoxModel::AddItem(const std::string& text)
{
    mList.push_back(text);
    Changed();
}

void ComboBoxModel::SetText(const std::string& text)
{
    const bool changes = text != mText;
    mListIndex = -1;
    Change(mText, text);
    if (changes) {
        mEvents.Raise(&ComboBoxEvents::Change);
    }
}

void ComboBoxModel::Clear()
{
    mList.clear();
    SetText("");
}

void ComboBoxModel::SetListIndex(std::int32_t index)
{
    if (index < -1 || index >= static_cast<std::int32_t>(mList.size())) {
        throw Failure(Error::InvalidPropertyValue);
    }
    const bool changes = index != mListIndex;
    mListIndex = index;
    Change(mText, index == -1 ? std::string() : mList[static_cast<std::size_t>(index)]);
    if (changes) {
        mEvents.Raise(&ComboBoxEvents::Click);
    }
}

void ComboBoxModel::Reset()
{
    ControlState::Reset();
    mList.clear();
    mListIndex = -1;
}

void ComboBoxModel::Choose(std::int32_t index)
{
    CheckCanBeWorked();
    if (index < 0 || index >= static_cast<std::int32_t>(mList.size())) {
        throw Failure(Error::InvalidCall);
    }
    mListIndex = index;
    Change(mText, mList[static_cast<std::size_t>(index)]);
    mEvents.Raise(&ComboBoxEvents::Click);
}

void ComboBoxModel::Type(const std::string& text)
{
    CheckCanBeWorked();
    SetText(text);
}

}
