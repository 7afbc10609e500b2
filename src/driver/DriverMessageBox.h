#pragma once

#include "base/Ref.h"
#include "driver/Json.h"
#include "host/store/Mailbox.h"
#include "platform/controls/MessageBox.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// Message boxes that are answered beforehand: what is shown is kept for the next answer of the driver.
class DriverMessageBox final : public MessageBox
{
public:
    /// Shows a box on a screen until it is answered in that way, and answers what it got.
    using Shower = std::function<Answer(
        const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon, Answer answer)>;

    /// A box lets in what that mailbox has to tell. Without something that shows it it is answered at once.
    explicit DriverMessageBox(Ref<Mailbox> mailbox, Shower shower = {});
    ~DriverMessageBox() override;
    DriverMessageBox(const DriverMessageBox&) = delete;
    DriverMessageBox& operator=(const DriverMessageBox&) = delete;

    /// The next answer that was prepared; its default button when there is none, or none that fits the box.
    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

    /// Prepares the answers to the next boxes, in the place of those left over.
    void Prepare(const std::vector<std::string>& answers);
    /// How many boxes were shown since they were last taken.
    std::size_t Count() const;
    /// The boxes shown since then, without the first ones.
    Json ShownFrom(std::size_t first) const;
    /// The boxes shown since then, and an end of it.
    Json Take();

private:
    Ref<Mailbox> mMailbox;
    Shower mShower;
    std::deque<Answer> mAnswers;
    std::vector<Json> mShown;
};

}
