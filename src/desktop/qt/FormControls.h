#pragma once

#include "forms/FormSnapshot.h"
#include "platform/controls/Form.h"

#include <cstdint>
#include <functional>
#include <string>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QString;
class QWidget;

namespace tempodial {

/// What a person does to the controls of a form, told by their names.
struct FormWishes
{
    std::function<void(const std::string& control, const std::string& text)> type;
    std::function<void(const std::string& control, std::int32_t entry)> choose;
    std::function<void(const std::string& control, bool isChecked)> check;
    std::function<void(const std::string& control)> click;
};

/// A field of one line.
QLineEdit* NewLine(QWidget* parent);
/// A combo box in which anything can be typed; what is typed is no choice, even when the list has it.
QComboBox* NewComboBox(QWidget* parent);
/// Names a control for assistive programs by the caption of its label, with the field in it.
void NameControl(QWidget& widget, const std::string& caption);
/// Shows a list and a text in a combo box, as far as it shows others. The position is -1 when no entry is chosen.
void ShowInComboBox(QComboBox& box, const std::vector<std::string>& list, const std::string& text, int position);

/// The text in a box of several lines, each behind the first after a line feed.
QString TextIn(const QPlainTextEdit& box);
/// A text as such a box has it, whatever its lines end with.
QString AsLines(QString text);

/// A widget for a control of a form, which tells what a person does to it; it has the control's name.
QWidget* NewFormControl(const ControlDefinition& control, const FormWishes& wishes, QWidget* parent);
/// Shows a control as it is now, as far as its widget shows something else. A label's key works only with what it tells
/// of.
void ShowFormControl(QWidget& widget, const ControlSnapshot& control, const ControlDefinition& definition);

}
