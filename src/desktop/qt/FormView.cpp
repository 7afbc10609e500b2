#include "desktop/qt/FormView.h"

#include "desktop/qt/QtText.h"
#include "forms/FormRules.h"
#include "forms/ModelHands.h"
#include "session/FormClick.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace tempodial {

namespace {

/// The width of a form, and of a field behind which something stands, in characters.
constexpr int FormCharacters = 70;
constexpr int ShortFieldCharacters = 8;
/// Above a heading, in pixels.
constexpr int AboveHeading = 10;
constexpr int RowSpacing = 8;
constexpr int ControlSpacing = 6;

bool IsKind(const ControlDefinition& control, ControlKind kind)
{
    return control.kind == kind;
}

template <class Row> bool AreAll(const Row& row, ControlKind kind)
{
    return std::all_of(row.begin(), row.end(), [kind](const auto& control) { return IsKind(control, kind); });
}

/// True for a text that heads what follows: a word or two without a key, and no sentence.
bool IsHeading(const std::string& text)
{
    const auto words = QString::fromStdString(text).trimmed();
    return !words.isEmpty() && words.count(' ') <= 1 && !words.contains('&') && words.back().isLetterOrNumber();
}

}

FormView::FormView(Desk& desk, const Ref<FormModel>& form, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mForm(form.Shared())
{
    Assemble(form->Definition());
    NameControls(form->Definition());
    Follow();
}

FormWishes FormView::Wishes()
{
    const auto hands = [this] { return ModelHands(*mDesk.Session().Forms()); };
    return { .type
        = [this, hands](const std::string& control,
              const std::string& text) { Work([&](FormModel& form) { hands().Type(form.Number(), control, text); }); },
        .choose
        = [this, hands](const std::string& control,
              std::int32_t entry) { Work([&](FormModel& form) { hands().Choose(form.Number(), control, entry); }); },
        .check
        = [this, hands](const std::string& control,
              bool isChecked) { Work([&](FormModel& form) { hands().Check(form.Number(), control, isChecked); }); },
        .click = [this](const std::string& control) { Click(control); } };
}

void FormView::Work(const std::function<void(FormModel& form)>& work)
{
    // Held to the end of it, however the form goes meanwhile.
    if (const auto form = mForm.lock()) {
        mDesk.Do([&] { work(*form); });
    }
}

void FormView::Click(const std::string& control)
{
    Work([&](FormModel& form) {
        ClickAsStep(mDesk.Profile(), form.Definition().className, form.Caption(),
            [&] { ModelHands(*mDesk.Session().Forms()).Click(form.Number(), control); });
    });
}

void FormView::Assemble(const FormDefinition& form)
{
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(RowSpacing);
    grid->setColumnStretch(1, 1);
    setMinimumWidth(fontMetrics().averageCharWidth() * FormCharacters);
    const auto wishes = Wishes();
    for (const auto& row : form.rows) {
        Row shown;
        for (const auto& control : row) {
            if (control.onForm) {
                shown.push_back(control);
                mWidgets[control.name] = NewFormControl(control, wishes, this);
            }
        }
        if (!shown.empty()) {
            AddRow(*grid, shown);
        }
    }
    grid->setRowStretch(grid->rowCount(), 1);
}

void FormView::AddRow(QGridLayout& grid, const Row& row)
{
    const auto line = grid.rowCount();
    if (AreAll(row, ControlKind::Label)) {
        AddTexts(grid, row);
    } else if (AreAll(row, ControlKind::Button)) {
        grid.setRowMinimumHeight(line, AboveHeading);
        grid.addLayout(Line(row.begin(), row.end()), line + 1, 0, 1, 2);
    } else if (IsKind(row.front(), ControlKind::Label)) {
        grid.addWidget(mWidgets[row.front().name], line, 0, Qt::AlignLeft | Qt::AlignVCenter);
        grid.addLayout(Line(row.begin() + 1, row.end()), line, 1);
    } else {
        grid.addLayout(Line(row.begin(), row.end()), line, 0, 1, 2);
    }
}

void FormView::AddTexts(QGridLayout& grid, const Row& row)
{
    for (const auto& control : row) {
        auto* label = qobject_cast<QLabel*>(mWidgets[control.name]);
        label->setWordWrap(true);
        const auto line = grid.rowCount();
        if (IsHeading(control.text)) {
            auto font = label->font();
            font.setBold(true);
            label->setFont(font);
            grid.setRowMinimumHeight(line, line > 1 ? AboveHeading : 0);
        }
        grid.addWidget(label, line + 1, 0, 1, 2);
    }
}

QLayout* FormView::Line(Row::const_iterator from, Row::const_iterator to)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(ControlSpacing);
    if (IsKind(*from, ControlKind::Button)) {
        line->addStretch();
    }
    const bool isOne = std::next(from) == to;
    bool isFilled = false;
    for (auto control = from; control != to; ++control) {
        auto* widget = mWidgets[control->name];
        const bool isField = IsKind(*control, ControlKind::TextBox);
        const bool isBeforeText = std::next(control) != to && IsKind(*std::next(control), ControlKind::Label);
        const bool isChoice = IsKind(*control, ControlKind::ComboBox);
        // A box with a button behind it is as wide as there is room; several in a row are as wide as they need.
        const bool isBeforeButton = std::next(control) != to && IsKind(*std::next(control), ControlKind::Button);
        const bool isWide = IsKind(*control, ControlKind::ProgressBar) || (isField && !isBeforeText)
            || (isChoice && (isOne || isBeforeButton));
        if (isField && isBeforeText) {
            widget->setFixedWidth(widget->fontMetrics().averageCharWidth() * ShortFieldCharacters);
        }
        line->addWidget(widget, isWide ? 1 : 0);
        isFilled = isFilled || isWide;
    }
    if (!isFilled && !IsKind(*from, ControlKind::Button)) {
        line->addStretch();
    }
    return line;
}

void FormView::NameControls(const FormDefinition& form)
{
    for (const auto& row : form.rows) {
        for (const auto& control : row) {
            const auto* label = LabelOf(form, control.name);
            auto* widget = WidgetOf(control.name);
            if (label == nullptr || widget == nullptr || IsKind(control, ControlKind::Label)
                || dynamic_cast<const QAbstractButton*>(widget) != nullptr) {
                // Buttons of all kinds have words of their own.
                continue;
            }
            auto* text = qobject_cast<QLabel*>(WidgetOf(label->name));
            if (text->buddy() == nullptr) {
                text->setBuddy(widget);
            }
            NameControl(*widget, label->text);
        }
    }
}

void FormView::Follow()
{
    const auto form = mForm.lock();
    if (!form) {
        return;
    }
    const auto snapshot = SnapshotOf(*form);
    auto control = snapshot.controls.begin();
    for (const auto& row : form->Definition().rows) {
        for (const auto& definition : row) {
            if (auto* widget = WidgetOf(definition.name)) {
                ShowFormControl(*widget, *control, definition);
            }
            ++control;
        }
    }
}

QWidget* FormView::WidgetOf(const std::string& control) const
{
    const auto found = mWidgets.find(control);
    return found == mWidgets.end() ? nullptr : found->second;
}

}
