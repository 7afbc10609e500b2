#include "desktop/qt/ProjectRows.h"

#include "desktop/DesktopStrings.h"
#include "desktop/qt/ColourMenu.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "session/ProductFacts.h"

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
    FillColouredBy(*mColours->menu(), desk);
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
            [this](const std::string& name) {
                // What has no project stands above the rows.
                return name != NoProject && std::find(mNames.begin(), mNames.end(), name) == mNames.end();
            })
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
        row->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(row, &QWidget::customContextMenuRequested, this,
            [this, place, row](const QPoint& point) { ShowMenu(mNames[place], row->mapToGlobal(point)); });
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

void ProjectRows::ShowOnly(const Names& names)
{
    mOnly = names;
    ShowChosen();
    mShowOnly(mOnly);
}

void ProjectRows::ShowMenu(const std::string& name, const QPoint& place)
{
    QMenu menu(this);
    connect(menu.addAction(mOnly == Names { name } ? "Show &All" : "Show &Only This"), &QAction::triggered, this,
        [this, name] { ShowOnly(mOnly == Names { name } ? Names() : Names { name }); });
    FillTones(*menu.addMenu("&Colour"), mDesk, mLog.ColouredBy(), name);
    menu.exec(place);
}

bool ProjectRows::ShowAll()
{
    if (mOnly.empty()) {
        return false;
    }
    ShowOnly({});
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
