#pragma once

#include "base/Ref.h"
#include "faults/Interposer.h"
#include "platform/Platform.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/Views.h"

namespace tempodial {

/// What the add-in gets in the place of an object, which tells the interposer of its calls; nothing stays nothing, and
/// an item or a control keeps its kind.

Ref<Application> Wrapped(const Ref<Application>& object, const Ref<Interposer>& interposer);
Ref<NameSpace> Wrapped(const Ref<NameSpace>& object, const Ref<Interposer>& interposer);

Ref<MAPIFolder> Wrapped(const Ref<MAPIFolder>& object, const Ref<Interposer>& interposer);
Ref<Folders> Wrapped(const Ref<Folders>& object, const Ref<Interposer>& interposer);
Ref<Items> Wrapped(const Ref<Items>& object, const Ref<Interposer>& interposer);
Ref<Selection> Wrapped(const Ref<Selection>& object, const Ref<Interposer>& interposer);
Ref<Views> Wrapped(const Ref<Views>& object, const Ref<Interposer>& interposer);
Ref<View> Wrapped(const Ref<View>& object, const Ref<Interposer>& interposer);

Ref<OutlookItem> Wrapped(const Ref<OutlookItem>& object, const Ref<Interposer>& interposer);
Ref<AppointmentItem> Wrapped(const Ref<AppointmentItem>& object, const Ref<Interposer>& interposer);
Ref<MailItem> Wrapped(const Ref<MailItem>& object, const Ref<Interposer>& interposer);
Ref<Attachments> Wrapped(const Ref<Attachments>& object, const Ref<Interposer>& interposer);
Ref<Recipients> Wrapped(const Ref<Recipients>& object, const Ref<Interposer>& interposer);
Ref<UserProperties> Wrapped(const Ref<UserProperties>& object, const Ref<Interposer>& interposer);
Ref<FormDescription> Wrapped(const Ref<FormDescription>& object, const Ref<Interposer>& interposer);

Ref<Explorers> Wrapped(const Ref<Explorers>& object, const Ref<Interposer>& interposer);
Ref<Explorer> Wrapped(const Ref<Explorer>& object, const Ref<Interposer>& interposer);
Ref<Inspectors> Wrapped(const Ref<Inspectors>& object, const Ref<Interposer>& interposer);
Ref<Inspector> Wrapped(const Ref<Inspector>& object, const Ref<Interposer>& interposer);
Ref<Pages> Wrapped(const Ref<Pages>& object, const Ref<Interposer>& interposer);
Ref<Page> Wrapped(const Ref<Page>& object, const Ref<Interposer>& interposer);
Ref<PageControls> Wrapped(const Ref<PageControls>& object, const Ref<Interposer>& interposer);

Ref<CommandBars> Wrapped(const Ref<CommandBars>& object, const Ref<Interposer>& interposer);
Ref<CommandBar> Wrapped(const Ref<CommandBar>& object, const Ref<Interposer>& interposer);
Ref<CommandBarControls> Wrapped(const Ref<CommandBarControls>& object, const Ref<Interposer>& interposer);
Ref<CommandBarControl> Wrapped(const Ref<CommandBarControl>& object, const Ref<Interposer>& interposer);
Ref<CommandBarButton> Wrapped(const Ref<CommandBarButton>& object, const Ref<Interposer>& interposer);

Ref<FileSystemObject> Wrapped(const Ref<FileSystemObject>& object, const Ref<Interposer>& interposer);
Ref<Registry> Wrapped(const Ref<Registry>& object, const Ref<Interposer>& interposer);
Ref<ImportJournal> Wrapped(const Ref<ImportJournal>& object, const Ref<Interposer>& interposer);
/// The surroundings with files, registry, pictures, desktop and XML in the place of which the add-in gets others.
Platform Wrapped(const Platform& platform, const Ref<Interposer>& interposer);

}
