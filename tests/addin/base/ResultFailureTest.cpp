#include "addin/base/ResultFailure.h"

#include "addin/base/Guarded.h"
#include "addin/base/SystemText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <utility>

namespace tempodial {

namespace {

HRESULT Result(std::uint32_t bits)
{
    return static_cast<HRESULT>(bits);
}

/// Tells more when it is asked.
HRESULT STDMETHODCALLTYPE TellLater(EXCEPINFO* told)
{
    told->bstrDescription = NewBstr("told later");
    told->scode = Result(0x80040102);
    return S_OK;
}

}

TEST(ResultFailureTest, FailureOf_EachResult_HasTheNumberOfTheTable)
{
    const std::pair<std::uint32_t, std::int32_t> numbers[] = { { 0x80004004, 287 }, { 0x80040102, 287 },
        { 0x800A011F, 287 }, { 0x80020006, 438 }, { 0x80020003, 438 }, { 0x8002000E, 438 }, { 0x80020007, 438 },
        { 0x80020005, 13 }, { 0x80004002, 13 }, { 0x8002000A, 6 }, { 0x8002000B, 9 }, { 0x80020012, 11 },
        { 0x8007000E, 7 }, { 0x80070057, 5 }, { 0x80004003, 91 }, { 0x800706BA, 462 }, { 0x800A005B, 91 },
        { 0x8004010F, -2147221233 }, { 0x80010108, static_cast<std::int32_t>(0x80010108U) },
        { 0x80070005, static_cast<std::int32_t>(0x80070005U) } };
    for (const auto& [result, number] : numbers) {
        EXPECT_EQ(FailureOf(Result(result)).Number(), number) << std::hex << result;
    }
}

TEST(ResultFailureTest, FailureOf_NumberOfOurs_HasItsText)
{
    EXPECT_EQ(FailureOf(DISP_E_TYPEMISMATCH).Description(), "Type mismatch");
    EXPECT_EQ(FailureOf(Result(0x8004010F)).Description(), "The operation failed. An object could not be found.");
}

TEST(ResultFailureTest, FailureOf_ResultOfTheSystem_HasItsWordsWithoutLineEnd)
{
    const auto words = FailureOf(Result(0x80070005)).Description();
    EXPECT_FALSE(words.empty());
    EXPECT_NE(words, ErrorText(0));
    EXPECT_NE(words.back(), '\n');
    EXPECT_NE(words.back(), '\r');
}

TEST(ResultFailureTest, FailureOf_ResultThatNobodyKnows_HasTheGeneralText)
{
    EXPECT_EQ(FailureOf(Result(0x8004F123)).Description(), "Application-defined or object-defined error");
}

TEST(ResultFailureTest, FailureOf_ExceptionTold_TakesNumberAndTextAndFreesThem)
{
    EXCEPINFO told {};
    told.scode = Result(0x800A0035);
    told.bstrDescription = NewBstr("no such file");
    told.bstrSource = NewBstr("source");
    told.bstrHelpFile = NewBstr("help");
    const auto failure = FailureOf(DISP_E_EXCEPTION, told);
    EXPECT_EQ(failure.Number(), 53);
    EXPECT_EQ(failure.Description(), "no such file");
    EXPECT_EQ(told.bstrDescription, nullptr);
    EXPECT_EQ(told.bstrSource, nullptr);
    EXPECT_EQ(told.bstrHelpFile, nullptr);
}

TEST(ResultFailureTest, FailureOf_ExceptionThatTellsNothing_IsTheResult)
{
    EXCEPINFO told {};
    const auto failure = FailureOf(DISP_E_EXCEPTION, told);
    EXPECT_EQ(failure.Number(), static_cast<std::int32_t>(DISP_E_EXCEPTION));
    EXPECT_FALSE(failure.Description().empty());
}

TEST(ResultFailureTest, FailureOf_ExceptionWithCode_TakesTheCode)
{
    EXCEPINFO told {};
    told.wCode = 91;
    told.scode = Result(0x80004005);
    const auto failure = FailureOf(DISP_E_EXCEPTION, told);
    EXPECT_EQ(failure.Number(), 91);
    EXPECT_EQ(failure.Description(), ErrorText(91));
}

TEST(ResultFailureTest, FailureOf_ExceptionToldLater_IsAskedFor)
{
    EXCEPINFO told {};
    told.pfnDeferredFillIn = &TellLater;
    const auto failure = FailureOf(DISP_E_EXCEPTION, told);
    EXPECT_EQ(failure.Number(), 287);
    EXPECT_EQ(failure.Description(), "told later");
}

TEST(ResultFailureTest, Check_SuccessOrNot_FailsOnlyWhenItIsNone)
{
    EXPECT_NO_THROW(Check(S_OK));
    EXPECT_NO_THROW(Check(S_FALSE));
    EXPECT_THROW(Check(E_FAIL), Failure);
}

TEST(GuardedTest, Work_ThatFailsInAnyWay_EndsThere)
{
    int done = 0;
    EXPECT_EQ(Guarded([&] { ++done; }), S_OK);
    EXPECT_EQ(Guarded([&] { throw Failure(Error::Automation); }), S_OK);
    EXPECT_EQ(Guarded([&] { throw std::runtime_error("a"); }), S_OK);
    EXPECT_EQ(Guarded([&] { throw 1; }), S_OK);
    EXPECT_EQ(done, 1);
}

}
