#pragma once

#include "base/Ref.h"
#include "platform/controls/EventPump.h"
#include "platform/controls/Form.h"
#include "platform/controls/MessageBox.h"
#include "platform/system/Clock.h"
#include "platform/system/FileSystemObject.h"
#include "platform/system/ImportJournal.h"
#include "platform/system/LocaleFormats.h"
#include "platform/system/PictureLoader.h"
#include "platform/system/Registry.h"
#include "platform/system/Shell.h"
#include "platform/system/XmlDocument.h"

namespace tempodial {

/// Everything but the object model that the engine needs of its surroundings; a program hands it to `Connect`.
struct Platform
{
    Ref<FileSystemObject> fileSystem;
    Ref<Registry> registry;
    Ref<Shell> shell;
    Ref<Clock> clock;
    Ref<LocaleFormats> formats;
    Ref<XmlFactory> xml;
    Ref<PictureLoader> pictures;
    Ref<ImportJournal> importJournal;
    Ref<FormFactory> forms;
    Ref<MessageBox> messageBox;
    Ref<EventPump> eventPump;
};

}
