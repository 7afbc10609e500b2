#include "desktop/qt/drive/ClickedMessages.h"

#include "desktop/qt/QtMessageBox.h"
#include "desktop/qt/QtText.h"
#include "driver/RequestError.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <utility>

namespace tempodial {

namespace {

/// Clicks the button of an answer in the window that is open; what is wrong with it, empty for nothing.
std::string Clicked(const std::string& text, Answer answer)
{
    auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
        return "no window shows the message \"" + text + "\"";
    }
    std::string wrong;
    if (box->text() != ToQt(text)) {
        wrong = "the window shows \"" + FromQt(box->text()) + "\" for the message \"" + text + "\"";
    }
    auto* button = box->button(QtMessageBox::ButtonOf(answer));
    if (button == nullptr) {
        box->reject();
        return "the message \"" + text + "\" has no button for its answer";
    }
    QTest::mouseClick(button, Qt::LeftButton);
    return wrong;
}

}

DriverMessageBox::Shower ClickedMessages(const Ref<Mailbox>& mailbox)
{
    return [box = MakeRef<QtMessageBox>(mailbox)](
               const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon, Answer answer) {
        std::string wrong;
        QTimer::singleShot(0, [&] { wrong = Clicked(text, answer); });
        const auto given = box->Show(text, buttons, icon);
        if (!wrong.empty()) {
            throw RequestError(wrong);
        }
        return given;
    };
}

}
