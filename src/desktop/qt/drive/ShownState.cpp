#include "desktop/qt/drive/ShownState.h"

#include "desktop/qt/AgendaView.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/MainWindow.h"
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

std::size_t VisibleWindows()
{
    const auto windows = QApplication::topLevelWidgets();
    return static_cast<std::size_t>(std::count_if(windows.begin(), windows.end(),
        [](const auto* window) { return window->isVisible() && dynamic_cast<const MainWindow*>(window) != nullptr; }));
}

}

ShownState::ShownState(const Desk& desk, WindowFinder windowOf)
    : mDesk(desk)
    , mWindowOf(std::move(windowOf))
{
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
        auto* window = mWindowOf(explorer);
        if (window == nullptr) {
            differences.push_back("no " + name);
            continue;
        }
        for (const auto& difference : MenuDifferences(*window, *explorer->Bars())) {
            differences.push_back(name + ": " + difference);
        }
        const auto stored = Words(ActivitiesTouching(mDesk.Profile(), window->Log().Days()));
        const auto shown = Words(window->Agenda().Scene().Activities());
        if (stored != shown) {
            const auto [model, seen] = std::mismatch(stored.begin(), stored.end(), shown.begin(), shown.end());
            differences.push_back(name + ": the agenda shows " + (seen == shown.end() ? "nothing" : *seen) + " for "
                + (model == stored.end() ? "nothing" : *model));
        }
        const auto selected = Selected(*window, *explorer);
        if (window->Agenda().Selected() != selected) {
            differences.push_back(
                name + ": selected are " + List(window->Agenda().Selected()) + " for " + List(selected));
        }
    }
    return differences;
}

}
