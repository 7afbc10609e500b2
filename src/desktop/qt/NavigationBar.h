#pragma once

#include "desktop/DesktopSettings.h"
#include "desktop/qt/Desk.h"

#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>

class QBoxLayout;
class QLabel;
class QLineEdit;

namespace tempodial {

class FlatButton;

/// The bar at the top: which days are shown, in which view, and what is searched for.
class NavigationBar final : public QWidget
{
public:
    using View = DesktopSettings::View;

    NavigationBar(Desk& desk, QWidget* parent);

    /// What a person wants.
    std::function<void(int pages)> mPage;
    std::function<void()> mGoToToday;
    std::function<void(View view)> mShow;
    std::function<void(const QString& words)> mSearch;
    /// Enter was pressed in the search field.
    std::function<void()> mSearchAll;

    /// Shows what is shown.
    void Follow(const QString& days, const QString& week, View view, std::int64_t unassignedMinutes);
    /// The place for the product's buttons, at the right.
    QBoxLayout& Buttons() { return *mButtons; }
    QLineEdit& SearchField() { return *mSearchField; }
    FlatButton& ButtonOf(View view) { return *mViews[static_cast<std::size_t>(view)]; }

protected:
    /// Escape in the field of words empties it.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    FlatButton* Button(const QString& text);
    void StyleSearchField();

    Desk& mDesk;
    QLabel* mDays;
    QLabel* mWeek;
    std::array<FlatButton*, 4> mViews {};
    QLineEdit* mSearchField;
    QBoxLayout* mButtons;
};

}
