#pragma once

#include "addin/win32/FileText.h"
#include "addin/win32/forms/Win32FormFactory.h"
#include "platform/Platform.h"
#include "portable/InstalledRegistry.h"
#include "portable/PatternFormats.h"

#include <string>

namespace tempodial {

/// What differs between the modules of the add-in.
struct Win32Options
{
    FileText text = FileText::OfSystem();
    /// The title of message boxes.
    std::string title;
    /// Where the install folder is set, and which one it is when it isn't.
    InstalledRegistry::Place installPlace;
    std::string installFolder;
    LocalePatterns locale;
    /// What makes forms, of which one owns message boxes.
    Ref<Win32FormFactory> forms;
};

/// The surroundings that the system gives.
Platform Win32Surroundings(Win32Options options);

}
