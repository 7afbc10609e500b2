#pragma once

#include <functional>

class QObject;

namespace tempodial {

/// Does something once what is being done now is over, unless the object has gone by then.
void Afterwards(QObject& object, std::function<void()> what);

}
