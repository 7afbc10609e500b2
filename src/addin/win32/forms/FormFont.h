#pragma once

#include "addin/base/Windows.h"
#include "addin/win32/forms/TextMeasure.h"

#include <string>

namespace tempodial {

/// The font of a form's texts: that of the system's own messages.
class FormFont final : public TextMeasure
{
public:
    /// For a screen of so many dots per inch.
    explicit FormFont(unsigned dpi);
    ~FormFont() override;
    FormFont(const FormFont&) = delete;
    FormFont& operator=(const FormFont&) = delete;

    HFONT Get() const { return mFont; }
    PixelSize Of(const std::string& text, int widest) const override;
    int CharacterWidth() const override;

private:
    HFONT mFont;
    HDC mDevice;
    HGDIOBJ mFormer;
};

}
