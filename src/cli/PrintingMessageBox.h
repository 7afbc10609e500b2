#pragma once

#include "platform/controls/MessageBox.h"

#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// Prints a message and answers with its default button, since nobody is there to be asked.
class PrintingMessageBox final : public MessageBox
{
public:
    explicit PrintingMessageBox(std::ostream& stream)
        : mStream(stream)
    {
    }

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;
    /// True once there was a message.
    bool HasShown() const { return mHasShown; }

private:
    std::ostream& mStream;
    bool mHasShown = false;
};

}
