#pragma once

#include <cstdint>

class QAbstractButton;
class QComboBox;

namespace tempodial {

/// Opens the list of a combo box by its key and clicks on an entry; fails with `RequestError` when it doesn't open.
void ClickEntry(QComboBox& box, std::int32_t entry);

/// Clicks on the mark of a check box or of an option button.
void ClickMark(QAbstractButton& button);

}
