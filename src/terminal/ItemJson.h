#pragma once

#include "platform/objectmodel/AppointmentItem.h"
#include "terminal/JsonValue.h"

#include <cstdint>

namespace tempodial {

/// An item of that number as JSON: its fields, and those of an activity's user properties that it has. Fails as the
/// item does.
JsonValue ItemJson(std::int64_t number, const Ref<AppointmentItem>& item);

}
