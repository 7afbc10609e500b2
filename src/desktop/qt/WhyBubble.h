#pragma once

#include "desktop/WhyWords.h"

#include <QFrame>
#include <string>
#include <vector>

class QTreeWidget;

namespace tempodial {

/// What the rules of all projects say of an activity, in a table that opens above what asked for it.
class WhyBubble final : public QFrame
{
public:
    WhyBubble(const std::string& sentence, const std::vector<WhyLine>& lines, QWidget* parent);

    /// Opens it with its lower left corner at a point of the screen.
    void OpenAbove(const QPoint& place);
    QTreeWidget& List() { return *mList; }

private:
    QTreeWidget* mList;
};

}
