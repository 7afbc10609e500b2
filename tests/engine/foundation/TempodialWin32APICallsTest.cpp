#include "engine/foundation/TempodialWin32APICalls.h"

#include "support/MapRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::Throw;

class MockShell : public Shell
{
public:
    MOCK_METHOD(void, Open, (const std::string&), (override));
    MOCK_METHOD(std::int32_t, ThreadId, (), (override));
};

class MockRegistry : public Registry
{
public:
    MOCK_METHOD(Variant, Read, (Hive, const std::string&, const std::string&, RegistryAccess), (override));
    MOCK_METHOD(void, Write, (Hive, const std::string&, const std::string&, const std::string&), (override));
};

}

class TempodialWin32APICallsTest : public testing::Test
{
protected:
    TempodialWin32APICallsTest()
    {
        mPlatform.registry = mRegistry;
        mPlatform.shell = mShell;
    }

    Variant Read(const std::string& value)
    {
        return TempodialWin32APICalls::ReadRegistryValue(
            mPlatform, Hive::CurrentUser, "Key", value, RegistryAccess::All);
    }
    void Write(const std::string& value, const std::string& text)
    {
        TempodialWin32APICalls::WriteRegistryValue(mPlatform, Hive::CurrentUser, "Key", value, text);
    }

    Platform mPlatform;
    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    Ref<MockShell> mShell = MakeRef<MockShell>();
};

TEST_F(TempodialWin32APICallsTest, WriteRegistryValue_TrimsBlanks)
{
    const std::pair<const char*, const char*> rows[]
        = { { " a ", "a" }, { "", "" }, { "   ", "" }, { "\ta b", "\ta b" } };
    for (const auto& [written, read] : rows) {
        Write("value", written);
        EXPECT_EQ(Read("value"), Variant(read));
    }
}

TEST_F(TempodialWin32APICallsTest, ReadRegistryValue_NothingThere_IsTheEmptyTextAndMakesTheKey)
{
    EXPECT_EQ(Read("value"), Variant(""));
    EXPECT_EQ(mRegistry->keys.count({ Hive::CurrentUser, "Key" }), 1);
}

TEST_F(TempodialWin32APICallsTest, ReadRegistryValue_Number_StaysANumber)
{
    mRegistry->values[{ Hive::CurrentUser, "Key", "value" }] = 480;
    EXPECT_EQ(Read("value"), Variant(480));
}

TEST_F(TempodialWin32APICallsTest, Registry_Fails_IsNotReported)
{
    const auto registry = MakeRef<MockRegistry>();
    mPlatform.registry = registry;
    EXPECT_CALL(*registry, Read).WillOnce(Throw(Failure(Error::PermissionDenied)));
    EXPECT_CALL(*registry, Write).WillOnce(Throw(Failure(Error::PermissionDenied)));
    EXPECT_EQ(Read("value"), Variant(""));
    Write("value", "text");
}

TEST_F(TempodialWin32APICallsTest, GetThreadId_IsTheShells)
{
    EXPECT_CALL(*mShell, ThreadId).WillOnce(testing::Return(42)).WillOnce(Throw(Failure(Error::Automation)));
    EXPECT_EQ(TempodialWin32APICalls::GetThreadId(mPlatform), 42);
    EXPECT_EQ(TempodialWin32APICalls::GetThreadId(mPlatform), 0);
}

TEST_F(TempodialWin32APICallsTest, OpenInShell_FailsOrNot_ReportsNothing)
{
    EXPECT_CALL(*mShell, Open("FAQ.html")).WillOnce(testing::Return()).WillOnce(Throw(Failure(Error::Automation)));
    TempodialWin32APICalls::OpenInShell(mPlatform, "FAQ.html");
    TempodialWin32APICalls::OpenInShell(mPlatform, "FAQ.html");
}

}
