#pragma once

#include "addin/base/ComRef.h"
#include "addin/com/AutomationObject.h"
#include "platform/system/PictureLoader.h"

#include <utility>

namespace tempodial {

/// A picture of the system's, as a button takes it.
class OlePicture final : public Picture, public AutomationObject
{
public:
    explicit OlePicture(ComRef<IDispatch> picture)
        : mPicture(std::move(picture))
    {
    }

    const ComRef<IDispatch>& Dispatch() const override { return mPicture; }

private:
    ComRef<IDispatch> mPicture;
};

}
