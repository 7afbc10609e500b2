#include "base/MemoryShortage.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// The address sanitizer has its own memory, and ends the process where there is none.
#if defined(__SANITIZE_ADDRESS__)
#define SKIP_WHERE_MEMORY_IS_WATCHED() GTEST_SKIP() << "the sanitizer has its own memory"
#else
#define SKIP_WHERE_MEMORY_IS_WATCHED() static_cast<void>(0)
#endif

namespace tempodial {

namespace {

/// Does something in a process of its own, since memory that was wanting stays so; true when it found what it expected.
bool HoldsAlone(const std::function<bool()>& work)
{
    const auto child = ::fork();
    if (child == 0) {
        std::_Exit(work() ? 0 : 1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Takes pieces of memory until one is refused; how many there were.
std::size_t TakeAll(std::vector<void*>& pieces, std::size_t size)
{
    while (pieces.size() < pieces.capacity()) {
        void* const piece = ::operator new(size, std::nothrow);
        if (piece == nullptr) {
            break;
        }
        pieces.push_back(piece);
    }
    return pieces.size();
}

}

TEST(MemoryShortageTest, Watch_EnoughMemory_NotesNothing)
{
    EXPECT_TRUE(HoldsAlone([] {
        MemoryShortage::Watch();
        const std::vector<char> room(1000);
        return !MemoryShortage::HasCome() && !room.empty();
    }));
}

TEST(MemoryShortageTest, Watch_RequestThatNothingMeets_FailsAndIsNoted)
{
    SKIP_WHERE_MEMORY_IS_WATCHED();
    EXPECT_TRUE(HoldsAlone([] {
        MemoryShortage::Watch();
        try {
            ::operator delete(::operator new(static_cast<std::size_t>(-1) / 4));
        } catch (const std::bad_alloc&) {
            return MemoryShortage::HasCome();
        }
        return false;
    }));
}

TEST(MemoryShortageTest, Watch_MemoryRunsOut_SomeIsLeftForTheEnd)
{
    SKIP_WHERE_MEMORY_IS_WATCHED();
    EXPECT_TRUE(HoldsAlone([] {
        constexpr std::size_t Piece = 4096;
        constexpr std::size_t Room = std::size_t { 64 } << 20;
        std::vector<void*> pieces;
        pieces.reserve(Room / 64);
        MemoryShortage::Watch();
        rlimit limit {};
        ::getrlimit(RLIMIT_DATA, &limit);
        limit.rlim_cur = Room;
        ::setrlimit(RLIMIT_DATA, &limit);
        while (!MemoryShortage::HasCome() && pieces.size() < pieces.capacity()) {
            pieces.push_back(::operator new(Piece));
        }
        const auto before = pieces.size();
        // What was met by the reserve is followed by a good deal more, before all is refused.
        return before < pieces.capacity() && TakeAll(pieces, Piece) > before + 100;
    }));
}

TEST(MemoryShortageTest, Note_FromALibrary_IsKept)
{
    EXPECT_TRUE(HoldsAlone([] {
        MemoryShortage::Note();
        return MemoryShortage::HasCome();
    }));
}

TEST(MemoryShortageTest, Require_WhatIsThere_IsMetAndWhatIsNotFails)
{
    SKIP_WHERE_MEMORY_IS_WATCHED();
    EXPECT_TRUE(HoldsAlone([] {
        MemoryShortage::Watch();
        MemoryShortage::Require(1000);
        MemoryShortage::RequireNone();
        try {
            MemoryShortage::Require(static_cast<std::size_t>(-1) / 4);
        } catch (const std::bad_alloc&) {
            try {
                MemoryShortage::RequireNone();
            } catch (const std::bad_alloc&) {
                return true;
            }
        }
        return false;
    }));
}

}
