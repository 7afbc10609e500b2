#include "desktop/qt/PageView.h"

#include "desktop/qt/FormControls.h"
#include "desktop/qt/QtText.h"
#include "forms/FormRules.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

namespace tempodial {

namespace {

using PageKind = FormPageLayout::Kind;

/// A label and what it tells of.
constexpr int ColumnsAField = 2;
constexpr int FieldSpacing = 8;

QString TypedIn(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return box->currentText();
    }
    const auto* field = qobject_cast<const QLineEdit*>(&widget);
    return field != nullptr ? field->text() : QString();
}

}

PageView::PageView(Desk& desk, Ref<HostInspector> inspector, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mInspector(std::move(inspector))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(FieldSpacing);
    const auto& page = *mInspector->ShownPage();
    const auto& rows = page.Layout().rows;
    std::size_t most = 1;
    for (const auto& row : rows) {
        most = std::max(most, row.size());
    }
    mFields.reserve(page.All().size());
    const auto columns = static_cast<int>(most) * ColumnsAField;
    auto control = page.All().begin();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t place = 0; place < rows[row].size(); ++place, ++control) {
            const auto column = static_cast<int>(place) * ColumnsAField;
            const bool isLast = place + 1 == rows[row].size();
            AddField(*grid, static_cast<int>(row), column, isLast ? columns - column : ColumnsAField, *control);
        }
    }
    for (int column = 1; column < columns; column += ColumnsAField) {
        grid->setColumnStretch(column, 1);
    }
    mPause.setSingleShot(true);
    mPause.setInterval(Pause);
    connect(&mPause, &QTimer::timeout, this, [this] {
        for (auto& field : mFields) {
            if (!field.isMoment) {
                Write(field);
            }
        }
    });
    Follow();
}

void PageView::AddField(QGridLayout& grid, int row, int column, int columns, const Ref<HostPageControl>& control)
{
    const auto& layout = control->Layout();
    const auto place = mFields.size();
    mFields.push_back({ .control = control, .widget = nullptr, .isMoment = control->Value().If<Date>() != nullptr });
    auto* widget = NewWidget(place, layout);
    mFields[place].widget = widget;
    widget->setObjectName(ToQt(layout.name));
    NameControl(*widget, layout.label);
    if (layout.kind != PageKind::Check) {
        auto* label = new QLabel(ToQt(layout.label), this);
        label->setBuddy(widget);
        grid.addWidget(label, row, column);
    }
    grid.addWidget(widget, row, column + 1, 1, columns - 1);
}

QWidget* PageView::NewWidget(std::size_t place, const FormPageLayout::Field& layout)
{
    if (layout.kind == PageKind::Check) {
        auto* box = new QCheckBox(ToQt(layout.label), this);
        connect(box, &QCheckBox::clicked, this,
            [this, name = layout.name](bool isChecked) { mDesk.Do([&] { mInspector->Edit(name, isChecked); }); });
        return box;
    }
    auto* widget = layout.kind == PageKind::Combo ? static_cast<QWidget*>(NewComboBox(this)) : NewLine(this);
    auto* line = qobject_cast<QLineEdit*>(widget);
    if (auto* box = qobject_cast<QComboBox*>(widget)) {
        line = box->lineEdit();
        // It is as wide as its column, whatever its entries are.
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMaximumWidth(QWIDGETSIZE_MAX);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(box, &QComboBox::activated, this, [this, place] {
            mFields[place].isPending = true;
            Write(mFields[place]);
        });
    }
    connect(line, &QLineEdit::textEdited, this, [this, place] { Typed(place); });
    connect(line, &QLineEdit::editingFinished, this, [this, place] { Write(mFields[place]); });
    return widget;
}

void PageView::Typed(std::size_t place)
{
    mFields[place].isPending = true;
    mPause.start();
}

bool PageView::Write(Field& field)
{
    // What is written comes back as a change, and what can't be taken is to be put back.
    if (!std::exchange(field.isPending, false) || mInspector->IsGone()) {
        return true;
    }
    bool isTaken = false;
    mDesk.Do([&] {
        mInspector->Edit(field.control->Layout().name, FromQt(TypedIn(*field.widget)));
        isTaken = true;
    });
    return isTaken;
}

bool PageView::WriteTyped()
{
    bool isTaken = true;
    for (auto& field : mFields) {
        isTaken = Write(field) && isTaken;
    }
    return isTaken;
}

void PageView::Follow()
{
    if (mInspector->IsGone()) {
        return;
    }
    for (const auto& field : mFields) {
        if (!field.isPending) {
            Show(field);
        }
    }
}

void PageView::Show(const Field& field)
{
    const auto text = field.control->Text();
    if (auto* check = qobject_cast<QCheckBox*>(field.widget)) {
        check->setChecked(field.control->Value().ToBoolean());
    } else if (auto* box = qobject_cast<QComboBox*>(field.widget)) {
        const auto& list = field.control->List();
        const auto at = std::find(list.begin(), list.end(), text);
        ShowInComboBox(*box, list, text, at == list.end() ? -1 : static_cast<int>(at - list.begin()));
    } else if (auto* line = qobject_cast<QLineEdit*>(field.widget); line != nullptr && line->text() != ToQt(text)) {
        line->setText(ToQt(text));
        line->setCursorPosition(0);
    }
}

QWidget* PageView::WidgetOf(const std::string& control) const
{
    return findChild<QWidget*>(ToQt(control), Qt::FindDirectChildrenOnly);
}

std::vector<std::pair<std::string, std::string>> PageView::Texts() const
{
    std::vector<std::pair<std::string, std::string>> texts;
    for (const auto& field : mFields) {
        if (field.control->Layout().kind != PageKind::Check) {
            texts.emplace_back(WithoutKey(field.control->Layout().label), field.control->Text());
        }
    }
    return texts;
}

}
