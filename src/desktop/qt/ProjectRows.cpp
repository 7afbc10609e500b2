#include "desktop/qt/ProjectRows.h"

#include "desktop/DesktopStrings.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "session/ProductFacts.h"

#include <QActionGroup>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <algorithm>

namespace tempodial {

ProjectRows::ProjectRows(Desk& desk, const ShownLog& log, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mLog(log)
    , mLayout(new QVBoxLayout(this))
    , mTitle(new QLabel(this))
    , mTotal(new QLabel(this))
    , mUnassigned(new ProjectRow(desk.Look(), this))
    , mColours(new QPushButton(this))
{
    constexpr int Spacing = 6;
    mLayout->setContentsMargins(0, 0, 0, 0);
    mLayout->setSpacing(Spacing);
    mLayout->addWidget(mTitle);
    mLayout->addWidget(mTotal);
    mLayout->addWidget(mUnassigned);
    mLayout->addWidget(mColours, 0, Qt::AlignLeft);
    mLayout->addStretch(1);
    mUnassigned->setCheckable(false);
    connect(mUnassigned, &QPushButton::clicked, this, [this] { mSortOut(); });
    mColours->setFlat(true);
    mColours->setMenu(new QMenu(mColours));
    mColours->setAccessibleDescription("Chooses by what activities are coloured");
    ChooseColours();
}

void ProjectRows::ChooseColours()
{
    auto* menu = mColours->menu();
    auto* group = new QActionGroup(menu);
    for (const auto& [choice, words] : { std::pair(ColourChoice::Automatic, "As Is Best"),
             std::pair(ColourChoice::Project, "By Project"), std::pair(ColourChoice::Application, "By Application") }) {
        auto* action = menu->addAction(words);
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, choice = choice] {
            mDesk.Change([choice](DesktopSettings& settings) { settings.colours = choice; });
        });
    }
    connect(menu, &QMenu::aboutToShow, this,
        [this, group] { group->actions()[static_cast<int>(mDesk.Settings().colours)]->setChecked(true); });
}

void ProjectRows::Follow(const QString& title)
{
    constexpr double TotalSize = 1.7;
    auto big = font();
    big.setPointSizeF(big.pointSizeF() * TotalSize);
    big.setWeight(QFont::DemiBold);
    mTotal->setFont(big);
    mTotal->setText(ToQt(LengthText(mLog.Sums().total)));
    mTotal->setAccessibleName(title + " " + mTotal->text());
    mTitle->setText(title);
    auto quiet = palette();
    quiet.setColor(QPalette::WindowText, ToQt(mDesk.Look().Colours().quietText));
    quiet.setColor(QPalette::ButtonText, ToQt(mDesk.Look().Colours().quietText));
    mTitle->setPalette(quiet);
    mColours->setPalette(quiet);
    const QString colours(mLog.ColouredBy() == Coloured::Project ? "Coloured by project" : "Coloured by application");
    // The arrow of its menu stands apart from the words.
    mColours->setText(colours + " ");
    mColours->setAccessibleName(colours);
    mUnassigned->Show({ .name = NoProject,
        .minutes = mLog.UnassignedMinutes(),
        .style = mDesk.StyleOf(Coloured::Project, NoProject),
        .link = "Sort out, largest first \u203a" });
    mUnassigned->setVisible(mLog.UnassignedMinutes() > 0);
    FillRows();
}

void ProjectRows::FillRows()
{
    mNames.clear();
    std::vector<ProjectRow::Content> contents;
    for (const auto& row : mLog.Sums().rows) {
        if (mLog.ColouredBy() == Coloured::Project && row.name == NoProject) {
            continue;
        }
        mNames.push_back(row.name);
        contents.push_back({ .name = ShownLine(row.name),
            .minutes = row.total,
            .most = contents.empty() ? row.total : contents.front().minutes,
            .style = mDesk.StyleOf(mLog.ColouredBy(), row.name) });
    }
    MakeRows(contents.size());
    for (std::size_t i = 0; i < contents.size(); ++i) {
        mRows[i]->Show(contents[i]);
    }
    if (std::erase_if(mOnly,
            [this](const std::string& name) { return std::find(mNames.begin(), mNames.end(), name) == mNames.end(); })
        > 0) {
        mShowOnly(mOnly);
    }
    ShowChosen();
}

void ProjectRows::MakeRows(std::size_t count)
{
    while (mRows.size() > count) {
        delete mRows.back();
        mRows.pop_back();
    }
    while (mRows.size() < count) {
        auto* row = new ProjectRow(mDesk.Look(), this);
        const auto place = mRows.size();
        connect(row, &QPushButton::clicked, this, [this, place] { Choose(mNames[place]); });
        mLayout->insertWidget(mLayout->count() - 1, row);
        mRows.push_back(row);
    }
}

void ProjectRows::Choose(const std::string& name)
{
    const bool adds = QApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
    const bool wasChosen = mOnly.count(name) > 0;
    if (!adds) {
        const bool wasAlone = wasChosen && mOnly.size() == 1;
        mOnly = wasAlone ? Names() : Names { name };
    } else if (wasChosen) {
        mOnly.erase(name);
    } else {
        mOnly.insert(name);
    }
    ShowChosen();
    mShowOnly(mOnly);
}

bool ProjectRows::ShowAll()
{
    if (mOnly.empty()) {
        return false;
    }
    mOnly.clear();
    ShowChosen();
    mShowOnly(mOnly);
    return true;
}

void ProjectRows::ShowChosen()
{
    for (std::size_t i = 0; i < mRows.size(); ++i) {
        mRows[i]->setChecked(mOnly.count(mNames[i]) > 0);
    }
}

std::optional<std::string> ProjectRows::ProjectAt(const QPoint& place) const
{
    // What is scrolled away lies under something else.
    const auto isOn = [&place](const QWidget& row) { return row.visibleRegion().contains(row.mapFromGlobal(place)); };
    if (isOn(*mUnassigned)) {
        return NoProject;
    }
    for (std::size_t i = 0; i < mRows.size() && mLog.ColouredBy() == Coloured::Project; ++i) {
        if (isOn(*mRows[i])) {
            return mNames[i];
        }
    }
    return std::nullopt;
}

}
