#pragma once

#include "platform/system/PictureLoader.h"

#include <string>

namespace tempodial {

/// Loads pictures as the system does.
class OlePictureLoader final : public PictureLoader
{
public:
    Ref<Picture> Load(const std::string& path) override;
};

}
