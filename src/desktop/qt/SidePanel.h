#pragma once

#include "desktop/qt/MiniMonth.h"
#include "desktop/qt/ProjectRows.h"

#include <QWidget>

namespace tempodial {

/// The panel at the left: a month in small, and the time of the days that are shown.
class SidePanel final : public QWidget
{
public:
    /// The log must live as long as this.
    SidePanel(Desk& desk, const ShownLog& log, QWidget* parent);

    /// The log has changed, or how things look.
    void Follow(const QString& title);

    MiniMonth& Month() { return *mMonth; }
    ProjectRows& Projects() { return *mProjects; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Desk& mDesk;
    const ShownLog& mLog;
    MiniMonth* mMonth;
    ProjectRows* mProjects;
};

}
