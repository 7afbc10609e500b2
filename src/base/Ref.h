#pragma once

#include "base/Failure.h"

#include <memory>
#include <utility>

namespace tempodial {

/// A shared reference that may be nothing; using a member of nothing fails (91).
template <class T> class Ref
{
public:
    Ref() = default;
    Ref(std::nullptr_t) { }
    Ref(std::shared_ptr<T> object)
        : mObject(std::move(object))
    {
    }
    template <class U>
    requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other)
        : mObject(other.Shared())
    {
    }
    template <class U>
    requires std::is_convertible_v<U*, T*> Ref(Ref<U>&& other)
        : mObject(std::move(other).Shared())
    {
    }

    /// The object; nothing fails (91).
    T* operator->() const { return Checked(); }
    /// The object; nothing fails (91).
    T& operator*() const { return *Checked(); }
    /// True when this isn't nothing.
    explicit operator bool() const noexcept { return mObject != nullptr; }
    /// The bare pointer, null for nothing.
    T* Get() const noexcept { return mObject.get(); }
    /// The shared pointer behind this reference.
    const std::shared_ptr<T>& Shared() const& noexcept { return mObject; }
    std::shared_ptr<T>&& Shared() && noexcept { return std::move(mObject); }
    /// The same object as another class, nothing when it is no such object.
    template <class U> Ref<U> As() const { return Ref<U>(std::dynamic_pointer_cast<U>(mObject)); }

    friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.mObject == b.mObject; }

private:
    T* Checked() const
    {
        if (!mObject) {
            throw Failure(Error::ObjectNotSet);
        }
        return mObject.get();
    }

    std::shared_ptr<T> mObject;
};

/// A new object with a reference to it.
template <class T, class... Args> Ref<T> MakeRef(Args&&... args)
{
    return Ref<T>(std::make_shared<T>(std::forward<Args>(args)...));
}

}
