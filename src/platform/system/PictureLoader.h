#pragma once

#include "base/Ref.h"

#include <string>

namespace tempodial {

/// A picture for a button.
class Picture
{
public:
    virtual ~Picture() = default;
};

/// Loads pictures from bitmap files.
class PictureLoader
{
public:
    virtual ~PictureLoader() = default;

    /// The picture of a file; an absent file fails (53), one that holds no bitmap (481).
    virtual Ref<Picture> Load(const std::string& path) = 0;
};

}
