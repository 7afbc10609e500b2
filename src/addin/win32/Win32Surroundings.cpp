#include "addin/win32/Win32Surroundings.h"

#include "addin/win32/MsxmlParser.h"
#include "addin/win32/NoImportJournal.h"
#include "addin/win32/OlePictureLoader.h"
#include "addin/win32/Win32Clock.h"
#include "addin/win32/Win32EventPump.h"
#include "addin/win32/Win32FileSystem.h"
#include "addin/win32/Win32MessageBox.h"
#include "addin/win32/Win32Registry.h"
#include "addin/win32/Win32Shell.h"
#include "portable/TreeXml.h"

#include <memory>
#include <utility>

namespace tempodial {

Platform Win32Surroundings(Win32Options options)
{
    return { .fileSystem = MakeRef<Win32FileSystem>(options.text),
        .registry = MakeRef<InstalledRegistry>(
            MakeRef<Win32Registry>(), std::move(options.installPlace), std::move(options.installFolder)),
        .shell = MakeRef<Win32Shell>(),
        .clock = MakeRef<Win32Clock>(),
        .formats = MakeRef<PatternFormats>(std::move(options.locale)),
        .xml = MakeRef<TreeXmlFactory>(std::make_shared<MsxmlParser>()),
        .pictures = MakeRef<OlePictureLoader>(),
        .importJournal = MakeRef<NoImportJournal>(),
        .forms = options.forms,
        .messageBox = MakeRef<Win32MessageBox>(std::move(options.title), MessageOwner(options.forms)),
        .eventPump = MakeRef<Win32EventPump>() };
}

}
