#include "host/system/BitmapLoader.h"

#include "host/system/BitmapPicture.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

namespace tempodial {
namespace {

struct Header
{
    std::uint32_t pixelsAt = 54;
    std::uint32_t headerSize = 40;
    std::int32_t width = 16;
    std::int32_t height = 16;
    std::uint16_t planes = 1;
    std::uint16_t bits = 24;
    std::uint32_t compression = 0;
    std::size_t pixelBytes = 768;
};

std::string Little(std::uint32_t value, int bytes)
{
    std::string text;
    for (int at = 0; at < bytes; ++at) {
        text += static_cast<char>((value >> (8 * at)) & 0xFF);
    }
    return text;
}

std::string Bitmap(const Header& header)
{
    return "BM" + Little(0, 4) + Little(0, 4) + Little(header.pixelsAt, 4) + Little(header.headerSize, 4)
        + Little(static_cast<std::uint32_t>(header.width), 4) + Little(static_cast<std::uint32_t>(header.height), 4)
        + Little(header.planes, 2) + Little(header.bits, 2) + Little(header.compression, 4) + std::string(20, '\0')
        + std::string(header.pixelBytes, 'p');
}

class BitmapLoaderTest : public testing::Test
{
protected:
    std::int32_t FailureOf(const std::string& content)
    {
        mFolder.Write("picture.bmp", content);
        return FailureNumber([&] { mLoader.Load(mFolder.Path("picture.bmp")); });
    }

    TempFolder mFolder;
    BitmapLoader mLoader;
};

TEST_F(BitmapLoaderTest, Load_Bitmap_KeepsPathBytesAndSize)
{
    const auto content = Bitmap({ .height = -16 });
    const auto path = mFolder.Write("picture.bmp", content);
    const auto picture = mLoader.Load(path).As<BitmapPicture>();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Path(), path);
    EXPECT_EQ(picture->Bytes(), content);
    EXPECT_EQ(picture->Width(), 16);
    EXPECT_EQ(picture->Height(), 16);
}

TEST_F(BitmapLoaderTest, Load_EachDepth_IsTaken)
{
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 1, .pixelBytes = 64 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 4, .pixelBytes = 128 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 8, .pixelBytes = 256 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 24 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 32, .pixelBytes = 1024 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 32, .compression = 3, .pixelBytes = 1024 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 8, .compression = 1, .pixelBytes = 4 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .bits = 4, .compression = 2, .pixelBytes = 4 })), 0);
    EXPECT_EQ(FailureOf(Bitmap({ .pixelsAt = 124, .headerSize = 108, .pixelBytes = 838 })), 0);
}

TEST_F(BitmapLoaderTest, Load_NoBitmap_Fails)
{
    const std::string rows[] = {
        "",
        "BM",
        "GIF89a" + std::string(100, 'x'),
        Bitmap({}).substr(0, 53),
        Bitmap({ .pixelBytes = 767 }),
        Bitmap({ .bits = 1, .pixelBytes = 63 }),
        Bitmap({ .width = 0 }),
        Bitmap({ .width = -16 }),
        Bitmap({ .width = 16385, .height = 1, .pixelBytes = 60000 }),
        Bitmap({ .height = 0 }),
        Bitmap({ .height = INT32_MIN }),
        Bitmap({ .planes = 0 }),
        Bitmap({ .bits = 0 }),
        Bitmap({ .bits = 16 }),
        Bitmap({ .compression = 1 }),
        Bitmap({ .compression = 4 }),
        Bitmap({ .compression = 0xFFFFFFFF }),
        Bitmap({ .headerSize = 12 }),
        Bitmap({ .headerSize = 0xFFFFFFFF }),
        Bitmap({ .pixelsAt = 53 }),
        Bitmap({ .pixelsAt = 55 }),
        Bitmap({ .pixelsAt = 0xFFFFFFFF }),
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FailureOf(row), 481) << testing::PrintToString(row.substr(0, 54));
    }
}

TEST_F(BitmapLoaderTest, Load_NoFile_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mLoader.Load(mFolder.Path("absent.bmp")); }), 53);
    EXPECT_EQ(FailureNumber([&] { mLoader.Load(mFolder.Path("no/absent.bmp")); }), 53);
    EXPECT_EQ(FailureNumber([&] { mLoader.Load(mFolder.Path()); }), 70);
}

TEST_F(BitmapLoaderTest, Load_EnormousFile_Fails)
{
    const auto path = mFolder.Write("picture.bmp", Bitmap({}));
    std::filesystem::resize_file(path, (std::uintmax_t { 16 } << 20) + 1);
    EXPECT_EQ(FailureNumber([&] { mLoader.Load(path); }), 481);
}

}
}
