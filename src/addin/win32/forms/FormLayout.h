#pragma once

#include "addin/win32/forms/TextMeasure.h"
#include "forms/FormSnapshot.h"
#include "platform/controls/Form.h"

#include <cstddef>
#include <vector>

namespace tempodial {

/// Where something stands on a form, in pixels.
struct FormPlace
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const FormPlace&) const = default;
};

/// Where the controls of a form stand: a row of the definition each, the labels in front of boxes in a column, buttons
/// at the right, and long texts in lines of 60 characters.
class FormLayout
{
public:
    /// Lays out a form with its present texts, on a screen of so many dots per inch.
    FormLayout(const FormDefinition& form, const FormSnapshot& seen, const TextMeasure& measure, unsigned dpi);

    /// The places of the controls in their order; that of a control off the form is empty.
    const std::vector<FormPlace>& Places() const { return mPlaces; }
    /// The size of the whole.
    PixelSize Size() const { return mSize; }

private:
    /// A control in its row.
    struct Cell
    {
        std::size_t position = 0;
        ControlKind kind = ControlKind::Label;
        PixelSize size {};
        /// True when it takes what the row leaves.
        bool stretches = false;
    };
    using Row = std::vector<Cell>;

    static bool LeadsBox(const Row& row);
    Row MakeRow(const std::vector<ControlDefinition>& controls, const FormSnapshot& seen, std::size_t& position) const;
    Cell MakeCell(const ControlDefinition& control, const std::string& text) const;
    void FitBoxes(Row& row) const;
    int WidthOf(const Row& row) const;
    void Place(const Row& row, int y, int height);
    int Scaled(int pixels) const;

    const TextMeasure& mMeasure;
    unsigned mDpi;
    int mLabelColumn = 0;
    int mContentWidth = 0;
    std::vector<FormPlace> mPlaces;
    PixelSize mSize {};
};

}
