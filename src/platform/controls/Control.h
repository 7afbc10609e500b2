#pragma once

namespace tempodial {

/// A control of a form.
class Control
{
public:
    virtual ~Control() = default;

    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
};

}
