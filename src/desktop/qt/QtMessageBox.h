#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "platform/controls/MessageBox.h"

#include <QMessageBox>
#include <functional>
#include <utility>

namespace tempodial {

/// The product's messages as windows of the toolkit, in front of the window that is worked with, which waits; others
/// don't.
class QtMessageBox final : public MessageBox
{
public:
    /// Takes what brings the windows up to date, which is asked before each message.
    explicit QtMessageBox(
        Ref<Mailbox> mailbox, std::function<void()> follow = [] {})
        : mMailbox(std::move(mailbox))
        , mFollow(std::move(follow))
    {
    }

    /// The button of an answer, as the toolkit numbers it.
    static QMessageBox::StandardButton ButtonOf(Answer answer);

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

private:
    Ref<Mailbox> mMailbox;
    std::function<void()> mFollow;
};

}
