#include "desktop/qt/QtMessageBox.h"

#include "desktop/qt/QtText.h"
#include "session/ProductFacts.h"

#include <QApplication>
#include <QPointer>

namespace tempodial {

namespace {

QMessageBox::Icon ToIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    default:
        return QMessageBox::NoIcon;
    }
}

}

QMessageBox::StandardButton QtMessageBox::ButtonOf(Answer answer)
{
    switch (answer) {
    case Answer::Yes:
        return QMessageBox::Yes;
    case Answer::No:
        return QMessageBox::No;
    case Answer::Cancel:
        return QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

Answer QtMessageBox::Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon)
{
    mMailbox->DeliverEvents();
    mFollow();
    // The window in front may go meanwhile, and takes what belongs to it along.
    const QPointer box(new QMessageBox(QApplication::activeWindow()));
    box->setWindowModality(Qt::WindowModal);
    box->setWindowTitle(ProductName);
    // What projects and activities are called is shown as it is, whatever marks it holds.
    box->setTextFormat(Qt::PlainText);
    box->setText(ToQt(text));
    box->setIcon(ToIcon(icon));
    for (const auto answer : buttons) {
        box->addButton(ButtonOf(answer));
    }
    if (!buttons.empty()) {
        box->setDefaultButton(ButtonOf(buttons.front()));
        // Escape and the frame answer what does least.
        box->setEscapeButton(ButtonOf(buttons.back()));
    }
    const auto pressed = box->exec();
    delete box;
    for (const auto answer : buttons) {
        if (ButtonOf(answer) == pressed) {
            return answer;
        }
    }
    return buttons.empty() ? Answer::Ok : buttons.back();
}

}
