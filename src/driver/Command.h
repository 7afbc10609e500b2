#pragma once

#include "driver/Json.h"
#include "driver/Request.h"

#include <functional>
#include <map>
#include <string>

namespace tempodial {

/// Does what a command asks for and answers its fields. Fails with `RequestError` or as what it works on does.
using Command = std::function<Json(const Request& request)>;

/// The commands by their names.
using CommandTable = std::map<std::string, Command>;

}
