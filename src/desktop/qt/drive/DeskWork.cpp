#include "desktop/qt/drive/DeskWork.h"

#include "desktop/qt/Desk.h"
#include "driver/RequestError.h"

#include <string>

namespace tempodial {

void WorkAt(Desk& desk, const std::function<void()>& work)
{
    std::string failed;
    const auto hearing = desk.Subscribe({ .Failed = [&](const std::string& message) { failed = message; } });
    work();
    if (!failed.empty()) {
        throw RequestError(failed);
    }
}

}
