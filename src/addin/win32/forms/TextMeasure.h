#pragma once

#include <string>

namespace tempodial {

/// How large something is, in pixels.
struct PixelSize
{
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// How large texts are in the font of a form.
class TextMeasure
{
public:
    virtual ~TextMeasure() = default;

    /// The size of a text, in which "&" marks a key; broken into lines of at most that width unless it is 0. An empty
    /// text is as high as a line.
    virtual PixelSize Of(const std::string& text, int widest) const = 0;
    /// The width of a character of usual texts.
    virtual int CharacterWidth() const = 0;
};

}
