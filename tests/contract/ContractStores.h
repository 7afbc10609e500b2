#pragma once

#include "contract/MailboxContractStore.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// All stores that are held against the contract.
inline std::vector<ContractStoreFactory> ContractStores()
{
    std::vector<ContractStoreFactory> stores;
    for (const std::string locale : { "en_US", "de_DE" }) {
        for (const bool inMemory : { true, false }) {
            stores.push_back({ (inMemory ? "Memory_" : "File_") + locale,
                [=] { return std::make_unique<MailboxContractStore>(locale, inMemory); } });
        }
    }
    return stores;
}

inline std::string StoreName(const testing::TestParamInfo<ContractStoreFactory>& store)
{
    return store.param.name;
}

}
