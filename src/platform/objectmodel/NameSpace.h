#pragma once

#include "platform/objectmodel/Folders.h"

namespace tempodial {

/// The mail session.
class NameSpace
{
public:
    virtual ~NameSpace() = default;

    /// The user's folder of that kind; may fail or give nothing.
    virtual Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) = 0;
    /// The stores of the session.
    virtual Ref<tempodial::Folders> Folders() = 0;
};

}
