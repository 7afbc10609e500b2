#pragma once

#include "host/system/ExpatParser.h"
#include "portable/TreeXml.h"

#include <memory>

namespace tempodial {

/// Makes documents that are read by expat.
class ExpatXmlFactory final : public TreeXmlFactory
{
public:
    ExpatXmlFactory()
        : TreeXmlFactory(std::make_shared<ExpatParser>())
    {
    }
};

}
