#include "support/CannedMessageBox.h"

namespace tempodial {

void CannedMessageBox::NextAnswer(Answer answer)
{
    mAnswers.push_back(answer);
}

std::vector<std::string> CannedMessageBox::TakeTexts()
{
    std::vector<std::string> texts;
    for (const auto& box : shown) {
        texts.push_back(box.text);
    }
    shown.clear();
    return texts;
}

Answer CannedMessageBox::Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon)
{
    shown.push_back({ text, buttons, icon });
    if (onShow) {
        onShow();
    }
    if (mAnswers.empty()) {
        return buttons.front();
    }
    const auto answer = mAnswers.front();
    mAnswers.pop_front();
    return answer;
}

}
