#pragma once

#include "forms/FormHands.h"
#include "wire/WireValue.h"

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// True for the word of a request about forms.
bool IsFormRequest(std::string_view word);

/// Does such a request of the other end, and gives its answer; what can't be done fails as the hands do.
WireValue DoFormRequest(FormHands& hands, const std::string& word, const std::vector<WireValue>& arguments);

}
