#include "desktop/qt/drive/FormPointer.h"

#include "desktop/qt/FormView.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/drive/PopupPointer.h"
#include "desktop/qt/drive/Typing.h"
#include "driver/RequestError.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QTest>

namespace tempodial {

bool FormPointer::Type(const std::string& control, const std::string& text)
{
    auto& field = WidgetOf(control);
    if (!CanBeTyped(field, text)) {
        return false;
    }
    TypeOver(field, text);
    return true;
}

void FormPointer::Choose(const std::string& control, std::int32_t entry)
{
    auto* box = qobject_cast<QComboBox*>(&WidgetOf(control));
    if (box == nullptr) {
        throw RequestError("the window shows no list for \"" + control + "\"");
    }
    ClickEntry(*box, entry);
}

void FormPointer::Check(const std::string& control, bool isChecked)
{
    auto* button = qobject_cast<QAbstractButton*>(&WidgetOf(control));
    if (button == nullptr || !button->isCheckable()) {
        throw RequestError("the window shows no mark for \"" + control + "\"");
    }
    if (button->isChecked() != isChecked) {
        ClickMark(*button);
    }
}

void FormPointer::Click(const std::string& control)
{
    QTest::mouseClick(&WidgetOf(control), Qt::LeftButton);
}

void FormPointer::Close()
{
    mWindow.close();
}

QWidget& FormPointer::WidgetOf(const std::string& control) const
{
    auto* widget = mWindow.View().WidgetOf(control);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) {
        throw RequestError("the window shows no control \"" + control + "\" that can be worked");
    }
    return *widget;
}

}
