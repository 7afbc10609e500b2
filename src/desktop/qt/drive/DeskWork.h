#pragma once

#include <functional>

namespace tempodial {

class Desk;

/// Does something at the windows of a desk; fails with `RequestError` when the desk is told that something failed.
void WorkAt(Desk& desk, const std::function<void()>& work);

}
