#pragma once

#include "desktop/ActivityTable.h"

#include <QTextDocument>

namespace tempodial {

/// Activities as a page to be printed: a table of each day, with its sum.
class LogPage final : public QTextDocument
{
public:
    LogPage(const QString& title, const QString& sum, const ActivityTable& table);
};

}
