#pragma once

#include "base/Ref.h"
#include "faults/FaultPlan.h"
#include "platform/Platform.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/Views.h"

namespace tempodial {

/// What the add-in gets in the place of an object, so that its calls can be made to fail; nothing stays nothing, and an
/// item or a control keeps its kind.

Ref<Application> Wrapped(const Ref<Application>& object, const Ref<FaultPlan>& plan);
Ref<NameSpace> Wrapped(const Ref<NameSpace>& object, const Ref<FaultPlan>& plan);

Ref<MAPIFolder> Wrapped(const Ref<MAPIFolder>& object, const Ref<FaultPlan>& plan);
Ref<Folders> Wrapped(const Ref<Folders>& object, const Ref<FaultPlan>& plan);
Ref<Items> Wrapped(const Ref<Items>& object, const Ref<FaultPlan>& plan);
Ref<Selection> Wrapped(const Ref<Selection>& object, const Ref<FaultPlan>& plan);
Ref<Views> Wrapped(const Ref<Views>& object, const Ref<FaultPlan>& plan);
Ref<View> Wrapped(const Ref<View>& object, const Ref<FaultPlan>& plan);

Ref<OutlookItem> Wrapped(const Ref<OutlookItem>& object, const Ref<FaultPlan>& plan);
Ref<AppointmentItem> Wrapped(const Ref<AppointmentItem>& object, const Ref<FaultPlan>& plan);
Ref<MailItem> Wrapped(const Ref<MailItem>& object, const Ref<FaultPlan>& plan);
Ref<Attachments> Wrapped(const Ref<Attachments>& object, const Ref<FaultPlan>& plan);
Ref<Recipients> Wrapped(const Ref<Recipients>& object, const Ref<FaultPlan>& plan);
Ref<UserProperties> Wrapped(const Ref<UserProperties>& object, const Ref<FaultPlan>& plan);
Ref<UserProperty> Wrapped(const Ref<UserProperty>& object, const Ref<FaultPlan>& plan);
Ref<FormDescription> Wrapped(const Ref<FormDescription>& object, const Ref<FaultPlan>& plan);

Ref<Explorers> Wrapped(const Ref<Explorers>& object, const Ref<FaultPlan>& plan);
Ref<Explorer> Wrapped(const Ref<Explorer>& object, const Ref<FaultPlan>& plan);
Ref<Inspectors> Wrapped(const Ref<Inspectors>& object, const Ref<FaultPlan>& plan);
Ref<Inspector> Wrapped(const Ref<Inspector>& object, const Ref<FaultPlan>& plan);
Ref<Pages> Wrapped(const Ref<Pages>& object, const Ref<FaultPlan>& plan);
Ref<Page> Wrapped(const Ref<Page>& object, const Ref<FaultPlan>& plan);
Ref<PageControls> Wrapped(const Ref<PageControls>& object, const Ref<FaultPlan>& plan);
Ref<PageControl> Wrapped(const Ref<PageControl>& object, const Ref<FaultPlan>& plan);

Ref<CommandBars> Wrapped(const Ref<CommandBars>& object, const Ref<FaultPlan>& plan);
Ref<CommandBar> Wrapped(const Ref<CommandBar>& object, const Ref<FaultPlan>& plan);
Ref<CommandBarControls> Wrapped(const Ref<CommandBarControls>& object, const Ref<FaultPlan>& plan);
Ref<CommandBarControl> Wrapped(const Ref<CommandBarControl>& object, const Ref<FaultPlan>& plan);
Ref<CommandBarButton> Wrapped(const Ref<CommandBarButton>& object, const Ref<FaultPlan>& plan);

/// The surroundings with files, registry, pictures, desktop and XML in the place of which the add-in gets others.
Platform Wrapped(const Platform& platform, const Ref<FaultPlan>& plan);

}
