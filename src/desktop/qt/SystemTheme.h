#pragma once

#include <QObject>
#include <functional>

namespace tempodial {

/// Asks the desktop whether its windows are to be dark, when the program begins and whenever it comes to the front. The
/// toolkit doesn't tell; a desktop that answers nothing is left as the palette says.
class SystemTheme
{
public:
    explicit SystemTheme(std::function<void(bool isDark)> tell);

private:
    void Ask();

    std::function<void(bool isDark)> mTell;
    /// What the answers are for; they come to nothing when it has gone.
    QObject mAsked;
};

}
