#pragma once

#include "addin/base/ComRef.h"
#include "base/Ref.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/Views.h"

namespace tempodial {

/// What the engine gets for an object of the host, nothing for nothing. An item is read for its class, and a control
/// for its type, since they say of which kind it is; one that can't be read is of no kind in particular.
template <class Interface> Ref<Interface> Adapted(const ComRef<IDispatch>& object);

template <> Ref<Application> Adapted(const ComRef<IDispatch>& object);
template <> Ref<NameSpace> Adapted(const ComRef<IDispatch>& object);

template <> Ref<MAPIFolder> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Folders> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Items> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Selection> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Views> Adapted(const ComRef<IDispatch>& object);
template <> Ref<View> Adapted(const ComRef<IDispatch>& object);

template <> Ref<OutlookItem> Adapted(const ComRef<IDispatch>& object);
template <> Ref<AppointmentItem> Adapted(const ComRef<IDispatch>& object);
template <> Ref<MailItem> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Attachments> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Recipients> Adapted(const ComRef<IDispatch>& object);
template <> Ref<UserProperties> Adapted(const ComRef<IDispatch>& object);
template <> Ref<UserProperty> Adapted(const ComRef<IDispatch>& object);
template <> Ref<FormDescription> Adapted(const ComRef<IDispatch>& object);

template <> Ref<Explorers> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Explorer> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Inspectors> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Inspector> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Pages> Adapted(const ComRef<IDispatch>& object);
template <> Ref<Page> Adapted(const ComRef<IDispatch>& object);
template <> Ref<PageControls> Adapted(const ComRef<IDispatch>& object);
template <> Ref<PageControl> Adapted(const ComRef<IDispatch>& object);

template <> Ref<CommandBars> Adapted(const ComRef<IDispatch>& object);
template <> Ref<CommandBar> Adapted(const ComRef<IDispatch>& object);
template <> Ref<CommandBarControls> Adapted(const ComRef<IDispatch>& object);
template <> Ref<CommandBarControl> Adapted(const ComRef<IDispatch>& object);
template <> Ref<CommandBarButton> Adapted(const ComRef<IDispatch>& object);
template <> Ref<CommandBarPopup> Adapted(const ComRef<IDispatch>& object);

}
