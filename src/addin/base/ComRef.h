#pragma once

#include "addin/base/Windows.h"

#include <utility>

namespace tempodial {

/// A counted reference to a COM object, or to none.
template <class T> class ComRef
{
public:
    ComRef() = default;
    /// Holds an object besides its other holders.
    explicit ComRef(T* object)
        : mObject(object)
    {
        if (mObject != nullptr) {
            mObject->AddRef();
        }
    }
    ComRef(const ComRef& other)
        : ComRef(other.mObject)
    {
    }
    ComRef(ComRef&& other) noexcept
        : mObject(std::exchange(other.mObject, nullptr))
    {
    }
    ComRef& operator=(ComRef other) noexcept
    {
        std::swap(mObject, other.mObject);
        return *this;
    }
    ~ComRef() { Clear(); }

    /// Takes over a reference that the caller holds.
    static ComRef Adopt(T* object)
    {
        ComRef adopted;
        adopted.mObject = object;
        return adopted;
    }

    explicit operator bool() const noexcept { return mObject != nullptr; }
    T* operator->() const noexcept { return mObject; }
    T* Get() const noexcept { return mObject; }

    /// Where a call puts a reference; what was held is let go.
    T** Put()
    {
        Clear();
        return &mObject;
    }
    /// The same for a call that takes the address of anything.
    void** PutAny() { return reinterpret_cast<void**>(Put()); } // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
    /// Lets the object go, which may call back.
    void Clear()
    {
        if (auto* object = std::exchange(mObject, nullptr)) {
            object->Release();
        }
    }
    /// Gives the reference to the caller.
    [[nodiscard]] T* Detach() noexcept { return std::exchange(mObject, nullptr); }
    /// The same object by another interface, nothing when it hasn't that.
    template <class U> ComRef<U> As(REFIID iid = __uuidof(U)) const
    {
        ComRef<U> other;
        if (mObject != nullptr && FAILED(mObject->QueryInterface(iid, other.PutAny()))) {
            other.Clear();
        }
        return other;
    }

private:
    T* mObject = nullptr;
};

}
