#include "host/system/ExpatParser.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>

namespace {

/// How many blocks of memory may still be had, negative for as many as are wanted.
int blocksLeft = -1;

}

void* operator new(std::size_t size)
{
    if (blocksLeft > 0) {
        --blocksLeft;
    } else if (blocksLeft == 0) {
        throw std::bad_alloc();
    }
    if (auto* block = std::malloc(size)) {
        return block;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(size);
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

namespace tempodial {

TEST(ExpatParserTest, Parse_MemoryEndsAnywhere_ThrowsAndReadsTheNextText)
{
    constexpr int Most = 1000;
    const std::string content(2000, 'x');
    const std::string text = "<day number='1'><slot>" + content + "</slot><none of='it'/><!-- --></day>";
    bool isRead = false;
    int failures = 0;
    for (int blocks = 0; blocks < Most && !isRead; ++blocks) {
        ExpatParser parser;
        XmlTree tree;
        blocksLeft = blocks;
        try {
            isRead = parser.Parse(text, tree);
            blocksLeft = -1;
            EXPECT_TRUE(isRead);
        } catch (const std::bad_alloc&) {
            blocksLeft = -1;
            ++failures;
            EXPECT_TRUE(tree.IsEmpty()) << blocks;
        }
        EXPECT_TRUE(parser.Parse(text, tree)) << blocks;
        EXPECT_EQ(tree.Text(XmlTree::Document), content) << blocks;
    }
    EXPECT_TRUE(isRead);
    EXPECT_GT(failures, 3);
}

}
