#include "desktop/qt/FormControls.h"

#include "desktop/qt/QtText.h"
#include "forms/FormRules.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QWheelEvent>
#include <limits>

namespace tempodial {

namespace {

/// The least width of a combo box, in characters.
constexpr int LeastCharacters = 4;
/// The most that its entries can make of that.
constexpr int MostCharacters = 60;
/// Texts are shown as a whole; by itself the toolkit cuts off what is longer than a page or so.
constexpr int AnyLength = std::numeric_limits<int>::max();
/// The lines that a box of several lines has room for.
constexpr int LinesShown = 4;

/// A combo box whose entry the wheel doesn't change, since it is turned to scroll.
class SteadyComboBox final : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

template <class Widget> void ShowCaption(Widget& widget, const QString& text)
{
    if (widget.text() != text) {
        widget.setText(text);
    }
}

void ShowText(QLineEdit& field, const QString& text)
{
    if (field.text() != text) {
        field.setText(text);
    }
}

void ShowText(QPlainTextEdit& field, const QString& text)
{
    const auto lines = AsLines(text);
    if (TextIn(field) != lines) {
        const QSignalBlocker quiet(field);
        field.setPlainText(lines);
    }
}

void ShowChecked(QAbstractButton& button, bool isChecked)
{
    if (button.isChecked() != isChecked) {
        // None of several may be chosen, which the toolkit doesn't know.
        button.setAutoExclusive(false);
        button.setChecked(isChecked);
        button.setAutoExclusive(qobject_cast<QRadioButton*>(&button) != nullptr);
    }
}

void ShowProgress(QProgressBar& bar, const ControlSnapshot& control)
{
    bar.setRange(control.min, control.max);
    bar.setValue(control.value);
}

QWidget* NewLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    // What projects are called is shown as it is, whatever marks it holds.
    label->setTextFormat(Qt::PlainText);
    return label;
}

QWidget* NewTextBox(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent)
{
    if (!control.severalLines) {
        auto* field = NewLine(parent);
        QObject::connect(field, &QLineEdit::textEdited, field,
            [name = control.name, type = wishes.type](const QString& text) { type(name, FromQt(text)); });
        return field;
    }
    auto* field = new QPlainTextEdit(parent);
    field->setTabChangesFocus(true);
    field->setFixedHeight(field->fontMetrics().lineSpacing() * LinesShown + field->fontMetrics().lineSpacing() / 2);
    QObject::connect(field, &QPlainTextEdit::textChanged, field,
        [field, name = control.name, type = wishes.type] { type(name, FromQt(TextIn(*field))); });
    return field;
}

QWidget* NewChoice(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent)
{
    auto* box = NewComboBox(parent);
    QObject::connect(box, &QComboBox::activated, box,
        [name = control.name, choose = wishes.choose](int entry) { choose(name, entry); });
    QObject::connect(box->lineEdit(), &QLineEdit::textEdited, box,
        [name = control.name, type = wishes.type](const QString& text) { type(name, FromQt(text)); });
    return box;
}

template <class Button> QWidget* NewCheck(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent)
{
    auto* button = new Button(parent);
    QObject::connect(button, &Button::clicked, button,
        [name = control.name, check = wishes.check](bool isChecked) { check(name, isChecked); });
    return button;
}

QWidget* NewButton(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setDefault(control.role == ButtonRole::Default);
    QObject::connect(
        button, &QPushButton::clicked, button, [name = control.name, click = wishes.click] { click(name); });
    return button;
}

QWidget* NewOfKind(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent)
{
    switch (control.kind) {
    case ControlKind::TextBox:
        return NewTextBox(control, wishes, parent);
    case ControlKind::ComboBox:
        return NewChoice(control, wishes, parent);
    case ControlKind::CheckBox:
        return NewCheck<QCheckBox>(control, wishes, parent);
    case ControlKind::OptionButton:
        return NewCheck<QRadioButton>(control, wishes, parent);
    case ControlKind::Button:
        return NewButton(control, wishes, parent);
    case ControlKind::ProgressBar:
        return new QProgressBar(parent);
    case ControlKind::Label:
        break;
    }
    return NewLabel(parent);
}

}

QLineEdit* NewLine(QWidget* parent)
{
    auto* line = new QLineEdit(parent);
    line->setMaxLength(AnyLength);
    return line;
}

QComboBox* NewComboBox(QWidget* parent)
{
    auto* box = new SteadyComboBox(parent);
    box->setEditable(true);
    box->lineEdit()->setMaxLength(AnyLength);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    // The other policy shrinks a box out of its layout a moment after each change of its list or of how things look.
    box->setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
    box->setMinimumContentsLength(LeastCharacters);
    // An entry may be a title of any length.
    box->setMaximumWidth(box->fontMetrics().averageCharWidth() * MostCharacters);
    QObject::disconnect(box->lineEdit(), &QLineEdit::editingFinished, box, nullptr);
    return box;
}

void NameControl(QWidget& widget, const std::string& caption)
{
    const auto name = ToQt(WithoutKey(caption));
    widget.setAccessibleName(name);
    if (const auto* box = qobject_cast<QComboBox*>(&widget); box != nullptr && box->isEditable()) {
        box->lineEdit()->setAccessibleName(name);
    }
}

void ShowInComboBox(QComboBox& box, const std::vector<std::string>& list, const std::string& text, int position)
{
    bool isSameList = box.count() == static_cast<int>(list.size());
    for (int entry = 0; isSameList && entry < box.count(); ++entry) {
        isSameList = box.itemText(entry) == ToQt(list[static_cast<std::size_t>(entry)]);
    }
    const QSignalBlocker quiet(box);
    const auto shown = ToQt(text);
    if (!isSameList) {
        const auto before = box.currentText();
        box.clear();
        for (const auto& entry : list) {
            box.addItem(ToQt(entry));
        }
        box.setCurrentIndex(-1);
        box.setEditText(before);
    }
    if (box.currentIndex() != position) {
        const auto cursor = box.lineEdit()->cursorPosition();
        box.setCurrentIndex(position);
        if (box.currentText() != shown) {
            box.setEditText(shown);
            box.lineEdit()->setCursorPosition(cursor);
        }
    } else if (box.currentText() != shown) {
        box.setEditText(shown);
    }
}

QString TextIn(const QPlainTextEdit& box)
{
    // The plain text would have a space for each that doesn't break.
    return AsLines(box.document()->toRawText());
}

QString AsLines(QString text)
{
    return text.replace("\r\n", "\n")
        .replace('\r', '\n')
        .replace(QChar::ParagraphSeparator, '\n')
        .replace(QChar::LineSeparator, '\n');
}

QWidget* NewFormControl(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent)
{
    auto* widget = NewOfKind(control, wishes, parent);
    widget->setObjectName(ToQt(control.name));
    widget->setToolTip(ToQt(control.toolTip));
    return widget;
}

void ShowFormControl(QWidget& widget, const ControlSnapshot& control, const ControlDefinition& definition)
{
    const auto text = ToQt(control.text);
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        ShowCaption(*label, label->buddy() != nullptr ? text : ToQt(WithoutKey(control.text)));
    } else if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        ShowText(*field, text);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) {
        ShowText(*lines, text);
    } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        ShowInComboBox(*box, control.list, control.text, control.index);
    } else if (auto* bar = qobject_cast<QProgressBar*>(&widget)) {
        ShowProgress(*bar, control);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        ShowCaption(*button, text);
        if (definition.kind != ControlKind::Button) {
            ShowChecked(*button, control.checked);
        }
    }
    widget.setEnabled(control.enabled);
    widget.setVisible(control.visible);
}

}
