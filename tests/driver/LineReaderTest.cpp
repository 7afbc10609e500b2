#include "driver/LineReader.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace {

/// A pipe that a text is written into.
class Input
{
public:
    explicit Input(const std::string& text)
    {
        if (::pipe(mEnds.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        mWriter = std::thread([text, end = mEnds[1]] {
            std::size_t written = 0;
            while (written < text.size()) {
                const auto got = ::write(end, text.data() + written, text.size() - written);
                if (got <= 0) {
                    break;
                }
                written += static_cast<std::size_t>(got);
            }
            ::close(end);
        });
    }
    ~Input()
    {
        mWriter.join();
        ::close(mEnds[0]);
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;
    int Descriptor() const { return mEnds[0]; }

private:
    std::array<int, 2> mEnds { -1, -1 };
    std::thread mWriter;
};

constexpr std::size_t Longest = 200'000;

}

TEST(LineReaderTest, Next_Lines_AreGivenWithoutTheirEnds)
{
    const Input input(std::string("a\n\nb\r\nc\0d\nlast", 14));
    LineReader lines(input.Descriptor(), Longest);
    EXPECT_EQ(lines.Next()->text, "a");
    EXPECT_EQ(lines.Next()->text, "");
    EXPECT_EQ(lines.Next()->text, "b\r");
    EXPECT_EQ(lines.Next()->text, std::string("c\0d", 3));
    EXPECT_EQ(lines.Next()->text, "last");
    EXPECT_FALSE(lines.Next());
    EXPECT_FALSE(lines.Next());
}

TEST(LineReaderTest, Next_NoInput_GivesNothing)
{
    const Input input("");
    EXPECT_FALSE(LineReader(input.Descriptor(), Longest).Next());
}

TEST(LineReaderTest, Next_LongLines_AreKeptUpToTheBound)
{
    const Input input(std::string(Longest, 'a') + "\n" + std::string(Longest + 1, 'b') + "\nc\n");
    LineReader lines(input.Descriptor(), Longest);
    const auto whole = lines.Next();
    EXPECT_EQ(whole->text, std::string(Longest, 'a'));
    EXPECT_FALSE(whole->isTooLong);
    const auto cut = lines.Next();
    EXPECT_EQ(cut->text.size(), Longest);
    EXPECT_TRUE(cut->isTooLong);
    EXPECT_EQ(lines.Next()->text, "c");
}

}
