#include "desktop/qt/drive/Typing.h"

#include "desktop/qt/QtText.h"

#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace tempodial {

namespace {

/// The widget that takes the keys.
QWidget& KeysOf(QWidget& field)
{
    auto* box = qobject_cast<QComboBox*>(&field);
    return box == nullptr ? field : *box->lineEdit();
}

bool IsEmpty(const QWidget& field)
{
    if (const auto* box = qobject_cast<const QComboBox*>(&field)) {
        return box->currentText().isEmpty();
    }
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&field)) {
        return lines->document()->isEmpty();
    }
    const auto* line = qobject_cast<const QLineEdit*>(&field);
    return line == nullptr || line->text().isEmpty();
}

}

bool CanBeTyped(const QWidget& field, const std::string& text)
{
    return !text.empty() || !IsEmpty(field);
}

void TypeOver(QWidget& field, const std::string& text)
{
    auto& keys = KeysOf(field);
    keys.setFocus(Qt::MouseFocusReason);
    QTest::keyClick(&keys, Qt::Key_A, Qt::ControlModifier);
    if (text.empty()) {
        QTest::keyClick(&keys, Qt::Key_Delete);
    } else {
        QInputMethodEvent input;
        input.setCommitString(ToQt(text));
        QApplication::sendEvent(&keys, &input);
    }
}

void LeaveField(QWidget& field)
{
    auto& keys = KeysOf(field);
    QTest::keyClick(&keys, keys.window()->isActiveWindow() ? Qt::Key_Tab : Qt::Key_Return);
}

}
