#pragma once

#include "support/TestMailbox.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {

/// A mailbox whose steps are looked at.
class StepFixture : public testing::Test
{
protected:
    /// A new item that is saved.
    Ref<StoreItem> Saved(const std::string& subject)
    {
        auto item = NewTestItem(mMailbox, subject);
        item->Save();
        return item;
    }
    static void Change(const Ref<StoreItem>& item, const std::string& subject)
    {
        item->SetSubject(subject);
        item->Save();
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    std::string mRules = "rules";
};

}
