#pragma once

#include "forms/FormHands.h"
#include "forms/FormSnapshot.h"
#include "wire/WireValue.h"

#include <vector>

namespace tempodial {

/// Forms as a value on the wire.
WireValue ToWire(const std::vector<FormSnapshot>& forms);
/// The forms that a value holds; another value fails with `std::out_of_range`.
std::vector<FormSnapshot> FormsFromWire(const WireValue& value);

/// The key of a form or of an entry as a value on the wire.
WireValue ToWire(const FormKey& key);
/// The key that a value holds.
FormKey KeyFromWire(const WireValue& value);

}
