#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "platform/controls/MessageBox.h"

#include <QMessageBox>
#include <utility>

namespace tempodial {

/// The product's messages as windows of the toolkit, in front of the window that is worked with.
class QtMessageBox final : public MessageBox
{
public:
    explicit QtMessageBox(Ref<Mailbox> mailbox)
        : mMailbox(std::move(mailbox))
    {
    }

    /// The button of an answer, as the toolkit numbers it.
    static QMessageBox::StandardButton ButtonOf(Answer answer);

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

private:
    Ref<Mailbox> mMailbox;
};

}
