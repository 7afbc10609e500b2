#pragma once

#include "base/Ref.h"
#include "wire/WireValue.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace tempodial {

class FaceObjects;

/// Raises the events of one object at the other end.
class FaceRaiser
{
public:
    /// Takes the table, which must outlive it, and the number of the object.
    FaceRaiser(FaceObjects& objects, std::int64_t object)
        : mObjects(&objects)
        , mObject(object)
    {
    }

    /// An event without arguments.
    void Plain(std::int32_t event) const { Raise(event, {}); }
    /// An event about an object.
    template <class Interface> void About(std::int32_t event, const Ref<Interface>& object) const;
    /// An event that can be refused; true when it was.
    bool Refused(std::int32_t event) const { return Raise(event, { WireValue::Missing() }); }
    /// An event about an object that can be refused; true when it was.
    template <class Interface> bool RefusedAbout(std::int32_t event, const Ref<Interface>& object) const;

private:
    bool Raise(std::int32_t event, const std::vector<WireValue>& arguments) const;

    FaceObjects* mObjects;
    std::int64_t mObject;
};

}
