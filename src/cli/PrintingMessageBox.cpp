#include "cli/PrintingMessageBox.h"

#include "terminal/TerminalText.h"

namespace tempodial {

Answer PrintingMessageBox::Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon)
{
    mHasShown = true;
    mStream << "tempodial: " << HarmlessLine(text) << "\n";
    mStream.flush();
    return buttons.empty() ? Answer::Ok : buttons.front();
}

}
