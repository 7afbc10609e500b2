#include "driver/DriverMessageBox.h"

#include "driver/RequestError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr std::array<std::pair<std::string_view, Answer>, 4> Answers { { { "ok", Answer::Ok }, { "yes", Answer::Yes },
    { "no", Answer::No }, { "cancel", Answer::Cancel } } };

std::string Word(Answer answer)
{
    return std::string(
        std::find_if(Answers.begin(), Answers.end(), [&](const auto& known) { return known.second == answer; })->first);
}

Answer ToAnswer(const std::string& word)
{
    const auto* const found
        = std::find_if(Answers.begin(), Answers.end(), [&](const auto& known) { return known.first == word; });
    if (found == Answers.end()) {
        throw RequestError("there is no answer \"" + word + "\": give ok, yes, no or cancel");
    }
    return found->second;
}

const char* Word(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Question:
        return "question";
    case MessageIcon::Exclamation:
        return "exclamation";
    case MessageIcon::None:
        break;
    }
    return "none";
}

}

DriverMessageBox::DriverMessageBox(Ref<Mailbox> mailbox, Shower shower)
    : mMailbox(std::move(mailbox))
    , mShower(std::move(shower))
{
}

DriverMessageBox::~DriverMessageBox() = default;

Answer DriverMessageBox::Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon)
{
    mMailbox->DeliverEvents();
    auto answer = buttons.empty() ? Answer::Ok : buttons.front();
    if (!mAnswers.empty()) {
        if (std::find(buttons.begin(), buttons.end(), mAnswers.front()) != buttons.end()) {
            answer = mAnswers.front();
        }
        mAnswers.pop_front();
    }
    if (mShower) {
        answer = mShower(text, buttons, icon, answer);
    }
    auto words = Json::array();
    for (const auto button : buttons) {
        words.push_back(Word(button));
    }
    mShown.push_back({ { "text", text }, { "buttons", words }, { "icon", Word(icon) }, { "answer", Word(answer) } });
    return answer;
}

void DriverMessageBox::Prepare(const std::vector<std::string>& answers)
{
    std::deque<Answer> prepared;
    for (const auto& word : answers) {
        prepared.push_back(ToAnswer(word));
    }
    mAnswers = std::move(prepared);
}

std::size_t DriverMessageBox::Count() const
{
    return mShown.size();
}

Json DriverMessageBox::ShownFrom(std::size_t first) const
{
    auto shown = Json::array();
    for (std::size_t i = first; i < mShown.size(); ++i) {
        shown.push_back(mShown[i]);
    }
    return shown;
}

Json DriverMessageBox::Take()
{
    auto shown = ShownFrom(0);
    mShown.clear();
    return shown;
}

}
