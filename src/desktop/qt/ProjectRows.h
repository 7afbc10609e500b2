#pragma once

#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/ProjectRow.h"

#include <QWidget>
#include <functional>
#include <set>
#include <string>
#include <vector>

class QBoxLayout;
class QLabel;

namespace tempodial {

class FlatButton;

/// The time of the days that are shown: in all, without a project, and of each project or application.
class ProjectRows final : public QWidget
{
public:
    using Names = std::set<std::string>;

    /// The log must live as long as this.
    ProjectRows(Desk& desk, const ShownLog& log, QWidget* parent);

    /// A person wants to see only what has one of those names; all for none.
    std::function<void(const Names& names)> mShowOnly;
    std::function<void()> mSortOut;

    /// The log has changed, or how things look. The title says which days are shown.
    void Follow(const QString& title);
    /// Shows only what has one of those names; all for none.
    void ShowOnly(const Names& names);
    /// Shows all again; true when that is a change.
    bool ShowAll();
    /// The name of the project in the row at a point of the screen; nothing when there is none.
    std::optional<std::string> ProjectAt(const QPoint& place) const;
    const std::vector<ProjectRow*>& Rows() const { return mRows; }
    ProjectRow& Unassigned() { return *mUnassigned; }

private:
    void FillRows();
    void MakeRows(std::size_t count);
    void Choose(const std::string& name);
    void ShowChosen();
    /// Opens the menu of a row, at a point of the screen.
    void ShowMenu(const std::string& name, const QPoint& place);

    Desk& mDesk;
    const ShownLog& mLog;
    QBoxLayout* mLayout;
    QLabel* mTitle;
    QLabel* mTotal;
    ProjectRow* mUnassigned;
    QPushButton* mColours;
    std::vector<ProjectRow*> mRows;
    std::vector<std::string> mNames;
    Names mOnly;
};

}
