#include "addin/win32/forms/FormLayout.h"

#include "addin/win32/forms/ScreenScale.h"

#include <algorithm>

namespace tempodial {

namespace {

// In pixels of a usual screen.
constexpr int Margin = 11;
constexpr int Gap = 7;
constexpr int LeastButtonWidth = 75;
constexpr int ButtonMargin = 12; ///< At each side of a button's text.
constexpr int ButtonHeightMargin = 4; ///< Above and below its text.
constexpr int BoxMargin = 4; ///< The same for boxes.
constexpr int MarkWidth = 20; ///< What check boxes and option buttons have in front of their text.

// In characters.
constexpr int LongestLine = 60;
constexpr int LeastContent = 44;
constexpr int BoxWidth = 26;
constexpr int BoxOfSeveralWidth = 13;
constexpr int BoxWithUnitWidth = 8;

constexpr int LinesOfBox = 4;

bool IsTypedInto(ControlKind kind)
{
    return kind == ControlKind::TextBox || kind == ControlKind::ComboBox;
}

}

FormLayout::FormLayout(const FormDefinition& form, const FormSnapshot& seen, const TextMeasure& measure, unsigned dpi)
    : mMeasure(measure)
    , mDpi(dpi)
    , mPlaces(seen.controls.size())
{
    std::vector<Row> rows;
    std::size_t position = 0;
    for (const auto& controls : form.rows) {
        auto row = MakeRow(controls, seen, position);
        if (!row.empty()) {
            rows.push_back(std::move(row));
        }
    }
    for (const auto& row : rows) {
        if (LeadsBox(row)) {
            mLabelColumn = std::max(mLabelColumn, row.front().size.width);
        }
    }
    mContentWidth = LeastContent * mMeasure.CharacterWidth();
    for (const auto& row : rows) {
        mContentWidth = std::max(mContentWidth, WidthOf(row));
    }
    int y = Scaled(Margin);
    for (const auto& row : rows) {
        const auto tallest = std::max_element(
            row.begin(), row.end(), [](const Cell& a, const Cell& b) { return a.size.height < b.size.height; });
        Place(row, y, tallest->size.height);
        y += tallest->size.height + Scaled(Gap);
    }
    mSize = { .width = mContentWidth + 2 * Scaled(Margin), .height = y - Scaled(Gap) + Scaled(Margin) };
}

bool FormLayout::LeadsBox(const Row& row)
{
    return row.size() > 1 && row[0].kind == ControlKind::Label && IsTypedInto(row[1].kind);
}

FormLayout::Row FormLayout::MakeRow(
    const std::vector<ControlDefinition>& controls, const FormSnapshot& seen, std::size_t& position) const
{
    Row row;
    for (const auto& control : controls) {
        if (control.onForm) {
            row.push_back(MakeCell(control, seen.controls.at(position).text));
            row.back().position = position;
        }
        ++position;
    }
    if (row.size() == 1 && row.front().kind == ControlKind::Label) {
        auto& label = row.front();
        label.size = mMeasure.Of(seen.controls.at(label.position).text, LongestLine * mMeasure.CharacterWidth());
        label.stretches = true;
    }
    FitBoxes(row);
    return row;
}

FormLayout::Cell FormLayout::MakeCell(const ControlDefinition& control, const std::string& text) const
{
    Cell cell { .kind = control.kind };
    const auto line = mMeasure.Of("", 0).height;
    const auto boxWidth = BoxWidth * mMeasure.CharacterWidth();
    switch (control.kind) {
    case ControlKind::Label:
        cell.size = mMeasure.Of(text, 0);
        break;
    case ControlKind::Button:
        cell.size
            = { .width = std::max(mMeasure.Of(text, 0).width + 2 * Scaled(ButtonMargin), Scaled(LeastButtonWidth)),
                  .height = line + 2 * Scaled(ButtonHeightMargin) };
        break;
    case ControlKind::TextBox:
        cell.size
            = { .width = boxWidth, .height = line * (control.severalLines ? LinesOfBox : 1) + 2 * Scaled(BoxMargin) };
        break;
    case ControlKind::ComboBox:
        cell.size = { .width = boxWidth, .height = line + 2 * Scaled(BoxMargin) };
        break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
        cell.size = mMeasure.Of(text, LongestLine * mMeasure.CharacterWidth());
        cell.size.width += Scaled(MarkWidth);
        break;
    case ControlKind::ProgressBar:
        cell.size = { .width = boxWidth, .height = line };
        cell.stretches = true;
        break;
    }
    return cell;
}

void FormLayout::FitBoxes(Row& row) const
{
    const auto boxes = std::count_if(row.begin(), row.end(), [](const Cell& cell) { return IsTypedInto(cell.kind); });
    for (auto cell = row.begin(); cell != row.end(); ++cell) {
        if (!IsTypedInto(cell->kind)) {
            continue;
        }
        const auto next = std::next(cell);
        if (boxes > 1) {
            cell->size.width = BoxOfSeveralWidth * mMeasure.CharacterWidth();
        } else if (next != row.end() && next->kind == ControlKind::Label) {
            // What follows is the unit of a number.
            cell->size.width = BoxWithUnitWidth * mMeasure.CharacterWidth();
        } else {
            cell->stretches = true;
        }
    }
}

int FormLayout::WidthOf(const Row& row) const
{
    int width = Scaled(Gap) * (static_cast<int>(row.size()) - 1);
    for (const auto& cell : row) {
        width += cell.size.width;
    }
    return LeadsBox(row) ? width - row.front().size.width + mLabelColumn : width;
}

void FormLayout::Place(const Row& row, int y, int height)
{
    const auto rest = mContentWidth - WidthOf(row);
    const auto areButtons
        = std::all_of(row.begin(), row.end(), [](const Cell& cell) { return cell.kind == ControlKind::Button; });
    int x = Scaled(Margin) + (areButtons ? rest : 0);
    for (const auto& cell : row) {
        const auto width = cell.size.width + (cell.stretches ? rest : 0);
        mPlaces[cell.position]
            = { .x = x, .y = y + (height - cell.size.height) / 2, .width = width, .height = cell.size.height };
        const auto isLeading = &cell == &row.front() && LeadsBox(row);
        x += (isLeading ? mLabelColumn : width) + Scaled(Gap);
    }
}

int FormLayout::Scaled(int pixels) const
{
    return (pixels * static_cast<int>(mDpi) + static_cast<int>(UsualDpi) / 2) / static_cast<int>(UsualDpi);
}

}
