#pragma once

#include "platform/objectmodel/AppointmentItem.h"
#include "terminal/JsonValue.h"

namespace tempodial {

/// An item as JSON: its number, null for one that isn't stored, its fields, and those of an activity's user properties
/// that it has. Fails as the item does.
JsonValue ItemJson(const Ref<AppointmentItem>& item);

}
