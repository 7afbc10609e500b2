#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class QVariant;

namespace tempodial {

/// Asks the desktop how its windows are to look: when the program begins, whenever it comes to the front, and when the
/// desktop says that something has changed. The toolkit doesn't tell; a desktop that answers nothing is left as the
/// palette says.
class SystemTheme
{
public:
    /// Told what the desktop wants.
    struct Wishes
    {
        std::function<void(bool isDark)> dark;
        std::function<void(bool isHigh)> contrast;
    };

    explicit SystemTheme(Wishes wishes);

    /// Takes an answer about one of the settings of the desktop's appearance; what says nothing changes nothing.
    void Take(const char* setting, const QVariant& value) const;

    static constexpr auto ColourScheme = "color-scheme";
    static constexpr auto Contrast = "contrast";

private:
    void Ask();
    void Ask(const char* setting);

    Wishes mWishes;
    /// What the answers are for; they come to nothing when it has gone.
    QObject mAsked;
    /// Asks a moment after something has changed, since settings change together.
    QTimer mSoon;
};

}
