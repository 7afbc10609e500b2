#include "base/Failure.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace tempodial {
namespace {

Failure Mapped(const std::function<void()>& call)
{
    try {
        call();
    } catch (...) {
        return Failure::FromCurrentException();
    }
    throw std::logic_error("nothing was thrown");
}

TEST(FailureTest, ErrorText_NumbersWithATextOfTheirOwn_HaveIt)
{
    const struct
    {
        std::int32_t number;
        std::string text;
    } rows[] = {
        { 5, "Invalid procedure call or argument" },
        { 6, "Overflow" },
        { 7, "Out of memory" },
        { 9, "Subscript out of range" },
        { 11, "Division by zero" },
        { 13, "Type mismatch" },
        { 52, "Bad file name or number" },
        { 53, "File not found" },
        { 54, "Bad file mode" },
        { 57, "Device I/O error" },
        { 58, "File already exists" },
        { 61, "Disk full" },
        { 62, "Input past end of file" },
        { 70, "Permission denied" },
        { 75, "Path/File access error" },
        { 76, "Path not found" },
        { 91, "Object variable or With block variable not set" },
        { 94, "Invalid use of Null" },
        { 287, "Application-defined or object-defined error" },
        { 380, "Invalid property value" },
        { 424, "Object required" },
        { 429, "ActiveX component can't create object" },
        { 438, "Object doesn't support this property or method" },
        { 440, "Automation error" },
        { 457, "This key is already associated with an element of this collection" },
        { 462, "The remote server machine does not exist or is unavailable" },
        { 481, "Invalid picture" },
        { -2147221233, "The operation failed. An object could not be found." },
        { 12345, "Application-defined or object-defined error" },
        { 0, "Application-defined or object-defined error" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ErrorText(row.number), row.text) << row.number;
        EXPECT_EQ(Failure(row.number).Description(), row.text) << row.number;
    }
}

TEST(FailureTest, Constructed_WithAndWithoutDescription_HoldsNumberAndDescription)
{
    const Failure own(Error::FileNotFound);
    EXPECT_EQ(own.Number(), 53);
    EXPECT_EQ(own.Description(), "File not found");
    EXPECT_STREQ(own.what(), "File not found");
    EXPECT_TRUE(own.Is(Error::FileNotFound));
    EXPECT_FALSE(own.Is(Error::PathNotFound));

    const Failure other(Error::Automation, "the mailbox is gone");
    EXPECT_EQ(other.Number(), 440);
    EXPECT_EQ(other.Description(), "the mailbox is gone");
    EXPECT_EQ(Failure(-7, "").Description(), "");
}

TEST(FailureTest, FromCurrentException_OwnFailure_IsKept)
{
    const auto failure = Mapped([] { throw Failure(1000, "words"); });
    EXPECT_EQ(failure.Number(), 1000);
    EXPECT_EQ(failure.Description(), "words");
}

TEST(FailureTest, FromCurrentException_StandardExceptions_AreMapped)
{
    EXPECT_EQ(Mapped([] { throw std::bad_alloc(); }).Number(), 7);
    EXPECT_EQ(Mapped([] { throw std::bad_array_new_length(); }).Number(), 7);
    EXPECT_EQ(Mapped([] { std::vector<int>().at(1); }).Number(), 9);
    EXPECT_EQ(Mapped([] { throw std::runtime_error("x"); }).Number(), 440);
    EXPECT_EQ(Mapped([] { throw 5; }).Number(), 440);
    EXPECT_EQ(Mapped([] { throw std::runtime_error("x"); }).Description(), "Automation error");
}

TEST(FailureTest, FromCurrentException_FileErrors_AreMappedByCode)
{
    const struct
    {
        std::errc code;
        std::int32_t number;
    } rows[] = {
        { std::errc::no_such_file_or_directory, 53 },
        { std::errc::not_a_directory, 76 },
        { std::errc::file_exists, 58 },
        { std::errc::permission_denied, 70 },
        { std::errc::operation_not_permitted, 70 },
        { std::errc::read_only_file_system, 70 },
        { std::errc::is_a_directory, 70 },
        { std::errc::device_or_resource_busy, 70 },
        { std::errc::text_file_busy, 70 },
        { std::errc::directory_not_empty, 75 },
        { std::errc::no_space_on_device, 61 },
        { std::errc::io_error, 57 },
        { std::errc::filename_too_long, 52 },
        { std::errc::invalid_argument, 52 },
        { std::errc::not_enough_memory, 7 },
    };
    for (const auto& row : rows) {
        const auto code = std::make_error_code(row.code);
        EXPECT_EQ(Mapped([&] { throw std::filesystem::filesystem_error("x", code); }).Number(), row.number)
            << code.message();
        EXPECT_EQ(Mapped([&] { throw std::system_error(code); }).Number(), row.number) << code.message();
    }
}

TEST(FailureTest, FromCurrentException_OtherCodes_AreAFileAccessOrAnAutomationError)
{
    const auto code = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    EXPECT_EQ(Mapped([&] { throw std::filesystem::filesystem_error("x", code); }).Number(), 75);
    EXPECT_EQ(Mapped([&] { throw std::system_error(code); }).Number(), 440);
}

TEST(FailureTest, FromCurrentException_RealFileCalls_GiveTheNumbersOfThePlatform)
{
    const auto absent = std::filesystem::temp_directory_path() / "no such folder of tempodial" / "file";
    EXPECT_EQ(Mapped([&] { static_cast<void>(std::filesystem::file_size(absent)); }).Number(), 53);
}

}
}
