#pragma once

#include "desktop/qt/Appearance.h"
#include "desktop/qt/CardCache.h"

#include <QPushButton>
#include <cstdint>

namespace tempodial {

/// A project or an application in the side panel, with its time and a bar of it. Checked, it alone is shown.
class ProjectRow final : public QPushButton
{
public:
    struct Content
    {
        QString name;
        std::int64_t minutes = 0;
        /// The minutes for which the bar has its whole length.
        std::int64_t most = 0;
        CardStyle style;
        /// Lies on a ground of its own, with a line that leads somewhere instead of a bar.
        QString link;
    };

    ProjectRow(const Appearance& look, QWidget* parent);

    void Show(const Content& content);
    const Content& Shown() const { return mContent; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double LineHeight() const;

    const Appearance& mLook;
    Content mContent;
};

}
