#include "desktop/KeyGuide.h"

namespace tempodial {

namespace {

constexpr auto InDays = "Day and week";
constexpr auto OnSelected = "What is selected";
constexpr auto InViews = "Views and days";
constexpr auto InSortOut = "Sort out";
constexpr auto InWindow = "Window";
constexpr auto InActivity = "Window of an activity";

}

const std::vector<KeyGuideLine>& KeyGuide()
{
    static const std::vector<KeyGuideLine> lines {
        { InDays, "Up, Down", "the activity before, the next" },
        { InDays, "Left, Right", "the nearest activity of the day beside" },
        { InDays, "Home, End", "the first, the last activity of the day" },
        { InDays, "Space", "select it or not" },
        { InDays, "Alt+Up, Alt+Down", "move it by five minutes" },
        { InDays, "Alt+Shift+Up, Alt+Shift+Down", "move its end by five minutes" },
        { InDays, "Ctrl++, Ctrl+-, Ctrl+0", "zoom in, out, so that all is seen" },
        { OnSelected, "Enter", "open" },
        { OnSelected, "1 to 9", "set the project of that number" },
        { OnSelected, "F2", "choose a project from the list" },
        { OnSelected, "N", "set a new project" },
        { OnSelected, "R", "make a rule" },
        { OnSelected, "Y", "why it has its project; again for all projects in a table" },
        { OnSelected, "Delete", "delete" },
        { OnSelected, "Ctrl+C", "copy" },
        { OnSelected, "Shift+F10", "menu of what is selected" },
        { InViews, "D, W, L, S", "day, week, list, sort out, unless the settings switch these off" },
        { InViews, "Ctrl+1 to Ctrl+4", "the same everywhere in the window" },
        { InViews, "T", "today, unless the settings switch it off" },
        { InViews, "Page Up, Page Down", "the days before, the next" },
        { InViews, "Alt+Left, Alt+Right", "the same everywhere in the window" },
        { InViews, "Ctrl+G", "go to a date" },
        { InSortOut, "Space", "show the activities of a group or not" },
        { InSortOut, "S", "later: the next one" },
        { InWindow, "Ctrl+F", "search; Enter there searches the whole log" },
        { InWindow, "Escape", "end the search, show all projects" },
        { InWindow, "Ctrl+A", "select all" },
        { InWindow, "Ctrl+Z, Ctrl+Shift+Z", "undo, redo" },
        { InWindow, "F5", "import what the tracker has written" },
        { InWindow, "F6, Shift+F6", "the next part of the window, the one before" },
        { InWindow, "F9", "the side panel" },
        { InWindow, "Ctrl+Shift+H", "hide titles" },
        { InWindow, "Ctrl+E", "export" },
        { InWindow, "Ctrl+,", "settings" },
        { InWindow, "Ctrl+N, Ctrl+W, Ctrl+Q", "new window, close, quit" },
        { InActivity, "Ctrl+S", "save and close" },
        { InActivity, "Ctrl+Shift+S", "save" },
        { InActivity, "Ctrl+P", "print" },
        { InActivity, "Ctrl+D", "delete" },
        { InActivity, "Ctrl+PgUp, Ctrl+PgDown", "the activity before, the next" },
    };
    return lines;
}

}
