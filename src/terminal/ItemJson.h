#pragma once

#include "platform/objectmodel/AppointmentItem.h"

#include <nlohmann/json.hpp>

namespace tempodial {

/// An item as JSON: its fields, and those of an activity's user properties that it has. Fails as the item does.
nlohmann::ordered_json ItemJson(const Ref<AppointmentItem>& item);

}
