#pragma once

#include "addin/base/Windows.h"
#include "wire/WireValue.h"

#include <string>
#include <vector>

namespace tempodial {

/// Hives that this process alone sees, in the place of the user's and the machine's; they begin empty and go with it.
class PrivateRegistry
{
public:
    /// Fails with `WireFailure` when they can't be made.
    PrivateRegistry();
    ~PrivateRegistry();
    PrivateRegistry(const PrivateRegistry&) = delete;
    PrivateRegistry& operator=(const PrivateRegistry&) = delete;

    /// Sets a value to a text or a number, or deletes it for nothing. Arguments: true for the machine's hive, key,
    /// value and data.
    static void Set(const std::vector<WireValue>& arguments);
    /// The value, nothing when there is none. Arguments: true for the machine's hive, key and value.
    static WireValue Get(const std::vector<WireValue>& arguments);
    /// The values of a key, each as a list of name and data. Arguments: true for the machine's hive, and key.
    static WireValue List(const std::vector<WireValue>& arguments);

private:
    std::wstring mRoot;
};

}
