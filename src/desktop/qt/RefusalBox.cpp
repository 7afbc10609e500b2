#include "desktop/qt/RefusalBox.h"

#include "desktop/qt/QtText.h"
#include "session/ProductFacts.h"

#include <QPushButton>

namespace tempodial {

RefusalBox::RefusalBox(const StartRefusal& refusal)
{
    setWindowTitle(ProductName);
    setIcon(Critical);
    // Paths may hold any marks.
    setTextFormat(Qt::PlainText);
    setText(ToQt(refusal.reason));
    setInformativeText(ToQt(refusal.remedy));
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    addButton("&Try Again", AcceptRole);
    auto* quit = addButton("&Quit", RejectRole);
    setDefaultButton(quit);
    setEscapeButton(quit);
}

bool RefusalBox::IsTriedAgain()
{
    exec();
    return buttonRole(clickedButton()) == AcceptRole;
}

}
