#pragma once

#include "desktop/qt/GuardedApplication.h"

#include <array>
#include <string>

namespace tempodial {

/// The application that all widgets need, made once, on a screen in memory, with the same fonts on every machine.
inline GuardedApplication& OffscreenApplication()
{
    // What screens there are may be said there.
    static const bool isOffscreen
        = (qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:")
              || qputenv(
                  "QT_QPA_PLATFORM", "offscreen:configfile=" TEMPODIAL_SOURCE_DIR "/tests/desktop/qt/data/screen.json"))
        && qputenv("FONTCONFIG_FILE", TEMPODIAL_SOURCE_DIR "/tests/desktop/qt/data/fonts.conf")
        // No bus of a session that the tests may run in.
        && qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    static int count = 1;
    static std::string name = "tests";
    static std::array<char*, 2> values { name.data(), nullptr };
    // Kept to the end of the process: what is static in the toolkit may outlive it no other way.
    static auto* const application = isOffscreen ? new GuardedApplication(count, values.data()) : nullptr;
    application->setQuitOnLastWindowClosed(false);
    return *application;
}

}
