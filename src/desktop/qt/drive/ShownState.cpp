#include "desktop/qt/drive/ShownState.h"

#include "desktop/WindowTitle.h"
#include "desktop/qt/ActivityList.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/drive/FormEyes.h"
#include "desktop/qt/drive/ItemEyes.h"
#include "desktop/qt/drive/ShownMenus.h"
#include "review/ActivityReader.h"
#include "session/ActivityGesture.h"

#include <QApplication>
#include <algorithm>
#include <set>
#include <utility>

namespace tempodial {

namespace {

/// An activity as it is compared, and told.
std::string Words(const Activity& activity)
{
    return std::to_string(activity.number) + " " + std::to_string(activity.start.Seconds()) + "-"
        + std::to_string(activity.end.Seconds()) + " " + activity.project + "/" + activity.type + "/"
        + activity.description;
}

std::vector<std::string> Words(const std::vector<Activity>& activities)
{
    std::vector<std::string> words;
    words.reserve(activities.size());
    std::transform(activities.begin(), activities.end(), std::back_inserter(words),
        [](const Activity& activity) { return Words(activity); });
    return words;
}

std::string List(const std::set<std::int64_t>& numbers)
{
    std::string list;
    for (const auto number : numbers) {
        list += (list.empty() ? "" : " ") + std::to_string(number);
    }
    return "[" + list + "]";
}

/// The activities that are selected in the model, as far as the window shows them.
std::set<std::int64_t> Selected(const MainWindow& window, HostExplorer& explorer)
{
    auto numbers = SelectedNumbers(explorer);
    std::erase_if(numbers, [&](std::int64_t number) { return !window.Log().PlaceOf(number); });
    return numbers;
}

/// The activities that a list has to show in its rows, those of folded groups apart, and those that it shows.
std::pair<std::set<std::int64_t>, std::set<std::int64_t>> Rows(
    const std::vector<Activity>& activities, const ActivityListModel& list)
{
    std::set<std::int64_t> expected;
    for (const auto& activity : activities) {
        expected.insert(activity.number);
    }
    std::set<std::int64_t> shown;
    for (int row = 0; row < static_cast<int>(list.Count()); ++row) {
        const auto* group = list.GroupOf(row);
        if (group == nullptr) {
            shown.insert(list.ActivityOf(row)->number);
        } else if (group->isFolded) {
            for (const auto place : group->activities) {
                expected.erase(list.Activities()[place].number);
            }
        }
    }
    return { expected, shown };
}

std::size_t VisibleWindows()
{
    const auto windows = QApplication::topLevelWidgets();
    return static_cast<std::size_t>(std::count_if(windows.begin(), windows.end(),
        [](const auto* window) { return window->isVisible() && dynamic_cast<const MainWindow*>(window) != nullptr; }));
}

}

std::vector<std::string> ShownState::Differences() const
{
    std::vector<std::string> differences;
    const auto& explorers = mDesk.Windows().OpenExplorers();
    if (const auto visible = VisibleWindows(); visible != explorers.size()) {
        differences.push_back(
            std::to_string(visible) + " windows are shown for " + std::to_string(explorers.size()) + " explorers");
    }
    for (const auto& explorer : explorers) {
        const auto name = "window " + std::to_string(explorer->Number());
        auto* window = mWindows.WindowOf(explorer);
        if (window == nullptr) {
            differences.push_back("no " + name);
            continue;
        }
        for (const auto& difference : DifferencesOf(*explorer, *window)) {
            differences.push_back(name + ": " + difference);
        }
    }
    for (const auto& others :
        { ShownFormDifferences(*mDesk.Session().Forms(), mWindows), ShownItemDifferences(mDesk, mWindows) }) {
        differences.insert(differences.end(), others.begin(), others.end());
    }
    return differences;
}

std::vector<std::string> ShownState::DifferencesOf(HostExplorer& explorer, MainWindow& window) const
{
    auto differences = MenuDifferences(window, *explorer.Bars());
    const auto activities = ActivitiesTouching(mDesk.Profile(), window.Log().Days());
    const auto stored = Words(activities);
    const auto shown = Words(window.Agenda().Scene().Activities());
    // What isn't seen shows nothing.
    if (window.Agenda().isVisible() && stored != shown) {
        const auto [model, seen] = std::mismatch(stored.begin(), stored.end(), shown.begin(), shown.end());
        differences.push_back("the agenda shows " + (seen == shown.end() ? "nothing" : *seen) + " for "
            + (model == stored.end() ? "nothing" : *model));
    }
    if (const auto title = WindowTitle(mDesk.Profile(), explorer); title && ToQt(*title) != window.windowTitle()) {
        differences.push_back("the title is \"" + FromQt(window.windowTitle()) + "\" for \"" + *title + "\"");
    }
    if (window.List().isVisible()) {
        const auto [expected, listed] = Rows(activities, window.List().Model());
        if (listed != expected) {
            differences.push_back("the list shows " + List(listed) + " for " + List(expected));
        }
    }
    const auto selected = Selected(window, explorer);
    if (window.Agenda().Selected() != selected) {
        differences.push_back("selected are " + List(window.Agenda().Selected()) + " for " + List(selected));
    }
    return differences;
}

}
