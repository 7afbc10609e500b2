#pragma once

#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"

#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

class QBoxLayout;
class QLabel;
class QMenu;

namespace tempodial {

class FlatButton;

/// The bar at the foot: what is selected, and what can be done with it at once.
class SelectionBar final : public QWidget
{
public:
    /// What a person wants of what is selected.
    struct Wishes
    {
        std::function<void(const std::string& project)> setProject;
        std::function<void()> setNewProject;
        std::function<void()> makeRule;
        std::function<void()> askWhy;
        std::function<void()> open;
        std::function<void()> remove;
        std::function<void()> sortOut;
        std::function<void()> showSettings;
    };

    /// How many projects can be set with a click, or by the keys from 1 on.
    static constexpr std::size_t Chips = 3;

    SelectionBar(Desk& desk, QWidget* parent);

    Wishes mWishes;

    /// Shows what is selected of the days that are shown, and the projects in the order in which they are likely for
    /// that.
    void Show(const std::vector<Activity>& selected, std::vector<std::string> projects, const Period& days);
    /// Shows what is to be said while nothing is selected.
    void ShowNothing(const QString& title, const QString& text, bool offersSorting);
    /// Says something for a while, or until something else is selected, in up to four lines; nothing ends it.
    void Say(const QString& text);
    const QString& Said() const { return mSaid; }

    /// The projects from the likeliest on.
    const std::vector<std::string>& Projects() const { return mProjects; }
    FlatButton& Chip(std::size_t place) { return *mChips[place]; }
    /// Opens the list of all projects.
    void ShowAllProjects();
    /// Fills a menu with the projects, the first nine with their keys.
    void FillMenu(QMenu& menu) const;

    QString Title() const;
    QString Text() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    FlatButton* Button(QBoxLayout& layout, const QString& text, std::function<void()> SelectionBar::Wishes::*wish);
    /// Lets go of what was said when others are selected.
    void Forget(const std::vector<Activity>& selected);
    void ShowTexts();
    static void ShowText(QLabel& label, const QString& text, int lines);
    void ShowGroups(bool hasSelection, bool offersSorting);

    Desk& mDesk;
    QLabel* mTitle;
    QLabel* mText;
    QWidget* mActions;
    QWidget* mEnds;
    QWidget* mOffers;
    FlatButton* mOpen = nullptr;
    std::vector<FlatButton*> mChips;
    FlatButton* mMore = nullptr;
    std::vector<std::string> mProjects;
    /// What is selected.
    std::vector<std::int64_t> mNumbers;
    QString mTitleText;
    QString mPlainText;
    QString mSaid;
};

}
