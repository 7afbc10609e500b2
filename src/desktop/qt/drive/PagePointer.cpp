#include "desktop/qt/drive/PagePointer.h"

#include "desktop/qt/CommandBarView.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/PageView.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/drive/PopupPointer.h"
#include "desktop/qt/drive/Typing.h"
#include "forms/FormRules.h"

#include <QCheckBox>
#include <QPointer>
#include <QTest>
#include <QToolButton>

namespace tempodial {

namespace {

/// A value as it is typed; nothing when what is read of that is another one.
std::optional<std::string> Typed(const Variant& value, LocaleFormats& formats)
{
    if (const auto* moment = value.If<Date>()) {
        auto text = formats.General(*moment);
        return formats.Parse(text) == *moment ? std::optional(std::move(text)) : std::nullopt;
    }
    return value.ToText();
}

}

bool PagePointer::Enter(const std::string& control, const Variant& value, LocaleFormats& formats)
{
    auto* widget = mWindow.Page() == nullptr ? nullptr : mWindow.Page()->WidgetOf(control);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) {
        return false;
    }
    if (auto* mark = qobject_cast<QCheckBox*>(widget)) {
        if (mark->isChecked() == value.ToBoolean()) {
            return false;
        }
        ClickMark(*mark);
        return true;
    }
    const auto text = Typed(value, formats);
    if (!text || !CanBeTyped(*widget, *text)) {
        return false;
    }
    TypeOver(*widget, *text);
    LeaveField(*widget);
    return true;
}

std::optional<bool> PagePointer::Save()
{
    if (!mWindow.isActiveWindow()) {
        return std::nullopt;
    }
    const QPointer window(&mWindow);
    QTest::keySequence(&mWindow, QKeySequence(InspectorWindow::SaveKeys));
    return !window || window->Notice().isEmpty();
}

bool PagePointer::Click(const std::string& caption)
{
    auto* button = mWindow.Commands().ButtonOf(ToQt(WithoutKey(caption)));
    if (button == nullptr || !button->isVisible() || !button->isEnabled()) {
        return false;
    }
    QTest::mouseClick(button, Qt::LeftButton, {}, { button->height() / 2, button->height() / 2 });
    return true;
}

}
