#pragma once

#include "desktop/qt/Desk.h"

#include <QWidget>
#include <functional>
#include <string>

namespace tempodial {

class FlatButton;

/// What a new user sees until there is something to show: where the tracker's files are read from, and an example.
class WelcomePage final : public QWidget
{
public:
    WelcomePage(Desk& desk, QWidget* parent);

    /// A person wants to open the tracker's folder.
    std::function<void(const std::string& path)> mOpenFolder;
    /// A person wants to look at the example.
    std::function<void()> mShowExample;

    FlatButton& CopyButton() { return *mCopy; }
    FlatButton& ExampleButton() { return *mExample; }

private:
    FlatButton* mCopy;
    FlatButton* mExample;
};

}
