#include "base/MemoryShortage.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t ReserveSize = std::size_t { 2 } << 20;

void* reserve = nullptr;
bool hasCome = false;

/// Lets a request that couldn't be met be tried again with the room of the reserve; the next one fails.
void HandOver()
{
    hasCome = true;
    if (reserve == nullptr) {
        throw std::bad_alloc();
    }
    std::free(std::exchange(reserve, nullptr));
}

}

void MemoryShortage::Watch()
{
    if (reserve == nullptr) {
        reserve = std::malloc(ReserveSize);
    }
    std::set_new_handler(HandOver);
}

void MemoryShortage::Note() noexcept
{
    hasCome = true;
}

bool MemoryShortage::HasCome() noexcept
{
    return hasCome;
}

void MemoryShortage::RequireNone()
{
    if (hasCome) {
        throw std::bad_alloc();
    }
}

void MemoryShortage::Require(std::size_t bytes)
{
    ::operator delete(::operator new(bytes));
    RequireNone();
}

}
