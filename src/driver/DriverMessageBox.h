#pragma once

#include "base/Ref.h"
#include "driver/Json.h"
#include "host/store/Mailbox.h"
#include "platform/controls/MessageBox.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace tempodial {

/// Message boxes that are answered beforehand: what is shown is kept for the next answer of the driver.
class DriverMessageBox final : public MessageBox
{
public:
    /// A box lets in what that mailbox has to tell.
    explicit DriverMessageBox(Ref<Mailbox> mailbox);
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
    std::deque<Answer> mAnswers;
    std::vector<Json> mShown;
};

}
