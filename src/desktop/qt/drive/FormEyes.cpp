#include "desktop/qt/drive/FormEyes.h"

#include "desktop/qt/FormControls.h"
#include "desktop/qt/FormView.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/JobStrip.h"
#include "desktop/qt/QtText.h"
#include "forms/FormDifferences.h"
#include "forms/FormRules.h"
#include "forms/FormSnapshot.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <algorithm>

namespace tempodial {

namespace {

ControlKind KindOf(const QWidget& widget)
{
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QPlainTextEdit*>(&widget) != nullptr) {
        return ControlKind::TextBox;
    }
    if (qobject_cast<const QComboBox*>(&widget) != nullptr) {
        return ControlKind::ComboBox;
    }
    if (qobject_cast<const QProgressBar*>(&widget) != nullptr) {
        return ControlKind::ProgressBar;
    }
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr) {
        return ControlKind::CheckBox;
    }
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr) {
        return ControlKind::OptionButton;
    }
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ? ControlKind::Button : ControlKind::Label;
}

void SeeContent(const QWidget& widget, ControlSnapshot& seen)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const auto text = FromQt(label->text());
        seen.text = label->buddy() != nullptr ? WithoutKey(text) : text;
    } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        seen.text = FromQt(line->text());
    } else if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget)) {
        seen.text = FromQt(TextIn(*lines));
    } else if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        seen.text = FromQt(box->currentText());
        seen.index = box->currentIndex();
        for (int entry = 0; entry < box->count(); ++entry) {
            seen.list.push_back(FromQt(box->itemText(entry)));
        }
    } else if (const auto* bar = qobject_cast<const QProgressBar*>(&widget)) {
        seen.min = bar->minimum();
        seen.max = bar->maximum();
        seen.value = bar->value();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        seen.text = FromQt(button->text());
        seen.checked = button->isChecked();
    }
}

ControlSnapshot See(const QWidget& widget, const QWidget& window)
{
    ControlSnapshot seen { .name = FromQt(widget.objectName()),
        .kind = KindOf(widget),
        .enabled = widget.isEnabledTo(&window),
        .visible = widget.isVisibleTo(&window),
        .tip = FromQt(widget.toolTip()) };
    SeeContent(widget, seen);
    return seen;
}

/// What a window shows of a form.
FormSnapshot SeenIn(FormWindow& window, FormModel& form)
{
    FormSnapshot seen { .number = form.Number(),
        .className = form.Definition().className,
        .title = FromQt(window.windowTitle()),
        .visible = window.isVisible() };
    for (const auto* widget : window.View().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        seen.controls.push_back(See(*widget, window));
    }
    return seen;
}

/// What has to be seen of a form: nothing that lies outside of it, and texts as they are shown.
FormSnapshot ToBeSeen(FormModel& form)
{
    auto shown = SnapshotOf(form);
    auto control = shown.controls.begin();
    for (const auto& row : form.Definition().rows) {
        for (const auto& definition : row) {
            if (!definition.onForm) {
                control = shown.controls.erase(control);
                continue;
            }
            if (definition.kind == ControlKind::Label) {
                control->text = WithoutKey(control->text);
            } else if (definition.severalLines) {
                control->text = FromQt(AsLines(ToQt(control->text)));
            }
            ++control;
        }
    }
    return shown;
}

std::size_t VisibleForms()
{
    const auto windows = QApplication::topLevelWidgets();
    return static_cast<std::size_t>(std::count_if(windows.begin(), windows.end(),
        [](const auto* window) { return window->isVisible() && dynamic_cast<const FormWindow*>(window) != nullptr; }));
}

}

std::vector<std::string> ShownFormDifferences(const FormModelFactory& forms, const HostWindows& windows)
{
    std::vector<FormSnapshot> visible;
    std::vector<FormSnapshot> seen;
    for (const auto& form : forms.Forms()) {
        if (form->Visible() && form->Definition().className != JobStrip::FormClass) {
            visible.push_back(ToBeSeen(*form));
            if (auto* window = windows.WindowOf(form)) {
                seen.push_back(SeenIn(*window, *form));
            }
        }
    }
    auto differences = FormDifferences(visible, seen);
    if (const auto count = VisibleForms(); count != visible.size()) {
        differences.push_back(
            std::to_string(count) + " windows of forms are shown for " + std::to_string(visible.size()));
    }
    return differences;
}

}
