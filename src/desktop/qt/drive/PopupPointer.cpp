#include "desktop/qt/drive/PopupPointer.h"

#include "driver/RequestError.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTest>

namespace tempodial {

void ClickEntry(QComboBox& box, std::int32_t entry)
{
    QTest::keyClick(&box, Qt::Key_F4);
    auto* list = box.view();
    if (!QTest::qWaitFor([list] { return list->isVisible(); })) {
        throw RequestError("the list of \"" + box.objectName().toStdString() + "\" doesn't open");
    }
    const auto index = box.model()->index(entry, box.modelColumn(), box.rootModelIndex());
    list->scrollTo(index);
    const auto place = list->visualRect(index).center();
    QTest::mouseMove(list->viewport(), place);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    if (list->isVisible()) {
        box.hidePopup();
        throw RequestError("the list of \"" + box.objectName().toStdString() + "\" takes no click");
    }
}

void ClickMark(QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const auto mark = qobject_cast<QRadioButton*>(&button) != nullptr ? QStyle::SE_RadioButtonIndicator
                                                                      : QStyle::SE_CheckBoxIndicator;
    const auto place = button.style()->subElementRect(mark, &option, &button).center();
    QTest::mouseClick(&button, Qt::LeftButton, {}, place);
}

}
