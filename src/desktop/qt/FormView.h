#pragma once

#include "desktop/qt/Desk.h"
#include "desktop/qt/FormControls.h"
#include "forms/FormModel.h"

#include <QWidget>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

class QGridLayout;
class QLabel;

namespace tempodial {

/// A form of the product in widgets: its rows as they are defined, what the model holds in them, and what a person does
/// back to the model.
class FormView final : public QWidget
{
public:
    /// Doesn't hold the form, which goes with its owner.
    FormView(Desk& desk, const Ref<FormModel>& form, QWidget* parent);

    /// Shows the form as it is now.
    void Follow();
    /// The widget of a control; null when it isn't on the form.
    QWidget* WidgetOf(const std::string& control) const;
    /// A person clicks a button of the form.
    void Click(const std::string& control);

private:
    using Row = std::vector<ControlDefinition>;

    FormWishes Wishes();
    /// Does something at the form as long as it is there.
    void Work(const std::function<void(FormModel& form)>& work);
    void Assemble(const FormDefinition& form);
    void AddRow(QGridLayout& grid, const Row& row);
    void AddTexts(QGridLayout& grid, const Row& row);
    QLayout* Line(Row::const_iterator from, Row::const_iterator to);
    void NameControls(const FormDefinition& form);

    Desk& mDesk;
    std::weak_ptr<FormModel> mForm;
    std::map<std::string, QWidget*> mWidgets;
};

}
