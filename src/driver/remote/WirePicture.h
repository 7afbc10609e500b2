#pragma once

#include "platform/system/PictureLoader.h"

#include <string>
#include <utility>

namespace tempodial {

/// A picture that came over the wire as the bytes of its file.
class WirePicture final : public Picture
{
public:
    explicit WirePicture(std::string bytes)
        : mBytes(std::move(bytes))
    {
    }

    const std::string& Bytes() const { return mBytes; }

private:
    std::string mBytes;
};

}
