#include "desktop/qt/ColourMenu.h"

#include "desktop/Tone.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/ProjectMark.h"
#include "desktop/qt/QtText.h"

#include <QActionGroup>
#include <QMenu>
#include <utility>

namespace tempodial {

namespace {

QString CapitalName(std::string_view name)
{
    auto text = ToQt(std::string(name));
    text[0] = text[0].toUpper();
    return text;
}

}

void FillColouredBy(QMenu& menu, Desk& desk)
{
    auto* group = new QActionGroup(&menu);
    for (const auto& [choice, words] :
        { std::pair(ColourChoice::Automatic, "As Is &Best"), std::pair(ColourChoice::Project, "By &Project"),
            std::pair(ColourChoice::Application, "By &Application") }) {
        auto* action = menu.addAction(words);
        action->setCheckable(true);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &menu, [&desk, choice = choice] {
            desk.Change([choice](DesktopSettings& settings) { settings.colours = choice; });
        });
    }
    QObject::connect(&menu, &QMenu::aboutToShow, &menu,
        [&desk, group] { group->actions()[static_cast<int>(desk.Settings().colours)]->setChecked(true); });
}

void FillTones(QMenu& menu, Desk& desk, Coloured kind, const std::string& name)
{
    constexpr int MarkSide = 16;
    const auto current = desk.ToneOf(kind, name);
    for (std::size_t tone = 0; tone < ToneCount; ++tone) {
        const auto mark = ProjectMarkPicture(MarkSide, desk.StyleOf(ToneUse { tone, false }));
        auto* action = menu.addAction(mark, CapitalName(Tones()[tone].name));
        action->setIconVisibleInMenu(true);
        action->setCheckable(true);
        action->setChecked(current && current->tone == tone);
        QObject::connect(
            action, &QAction::triggered, &menu, [&desk, kind, name, tone] { desk.ChooseTone(kind, name, tone); });
    }
}

}
