#pragma once

#include <string>
#include <vector>

namespace tempodial {

class MainWindow;

/// The pointer in what a window has to go to folders and to their views. What the window doesn't let a person do fails
/// with `RequestError`.
class FolderPointer
{
public:
    /// The window of an explorer, which must outlive it.
    explicit FolderPointer(MainWindow& window);

    /// True when the window's menu is there, and can be opened.
    bool HasMenu() const { return !mViewMenu.empty(); }
    /// Chooses folders, by their paths, in the list that the menu opens, one or several that differ.
    void Choose(const std::vector<std::string>& folders) const;
    /// Picks a view of the folder in the menu.
    void PickView(const std::string& name) const;
    /// True when the current folder has a view of exactly that name.
    bool HasView(const std::string& name) const;

private:
    MainWindow& mWindow;
    /// The caption of the menu of views, empty when there is none to be opened.
    std::string mViewMenu;
};

}
