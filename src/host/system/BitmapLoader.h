#pragma once

#include "platform/system/PictureLoader.h"

#include <string>

namespace tempodial {

/// Loads bitmap files of 1, 4, 8, 24 or 32 bits a pixel as `BitmapPicture`s.
class BitmapLoader : public PictureLoader
{
public:
    Ref<Picture> Load(const std::string& path) override;
};

}
