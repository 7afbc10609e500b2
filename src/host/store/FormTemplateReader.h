#pragma once

#include "host/store/FormTemplate.h"

#include <string>

namespace tempodial {

/// Reads form templates: compound files in the format of messages, with definitions of the user's fields, their values
/// as properties of the message, and the portable host's page in a stream of its own.
class FormTemplateReader
{
public:
    /// The form of a file; an absent file fails (53), an absent folder (76), one that can't be read (70), and one that
    /// is no form template (440).
    static FormTemplate Read(const std::string& path);
};

}
