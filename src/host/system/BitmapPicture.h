#pragma once

#include "platform/system/PictureLoader.h"

#include <cstdint>
#include <string>
#include <utility>

namespace tempodial {

/// A picture that was read from a bitmap file; whoever draws it decodes its bytes.
class BitmapPicture : public Picture
{
public:
    BitmapPicture(std::string path, std::string bytes, std::int32_t width, std::int32_t height)
        : mPath(std::move(path))
        , mBytes(std::move(bytes))
        , mWidth(width)
        , mHeight(height)
    {
    }

    /// The path that it was loaded from.
    const std::string& Path() const { return mPath; }
    /// The whole file.
    const std::string& Bytes() const { return mBytes; }
    /// Pixels.
    std::int32_t Width() const { return mWidth; }
    /// Pixels.
    std::int32_t Height() const { return mHeight; }

private:
    std::string mPath;
    std::string mBytes;
    std::int32_t mWidth;
    std::int32_t mHeight;
};

}
