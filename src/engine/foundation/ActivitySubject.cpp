#include "engine/foundation/ActivitySubject.h"

namespace tempodial {

std::string ActivitySubject(const std::string& application, const std::string& description)
{
    if (description.empty() || description == UnknownText) {
        return application;
    }
    return application.empty() ? description : application + ", " + description;
}

}
