#pragma once

#include "platform/controls/MessageBox.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// Message boxes that are answered from a list, and by their first button when the list is empty.
class CannedMessageBox : public MessageBox
{
public:
    struct Box
    {
        std::string text;
        std::vector<Answer> buttons;
        MessageIcon icon = MessageIcon::None;

        bool operator==(const Box&) const = default;
    };

    /// The boxes so far.
    std::vector<Box> shown;
    /// Run while a box is on the screen, when it is set.
    std::function<void()> onShow;

    /// Answers the next box that has no answer yet.
    void NextAnswer(Answer answer);
    /// The texts since the last call.
    std::vector<std::string> TakeTexts();
    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

private:
    std::deque<Answer> mAnswers;
};

}
