#include "track/bus/FakeInput.h"

#include <array>

namespace tempodial {

namespace {

std::array<const wl_interface*, 2> fakeInputTypes {};
const std::array fakeInputRequests {
    wl_message { "authenticate", "ss", fakeInputTypes.data() },
    wl_message { "pointer_motion", "ff", fakeInputTypes.data() },
};
const wl_interface fakeInput { "org_kde_kwin_fake_input", 1, fakeInputRequests.size(), fakeInputRequests.data(), 0,
    nullptr };
constexpr std::uint32_t Authenticate = 0;
constexpr std::uint32_t PointerMotion = 1;

}

FakeInput::FakeInput()
    : mInput(mConnection.Bind(fakeInput))
{
    if (IsThere()) {
        ::wl_proxy_marshal_flags(mInput, Authenticate, nullptr, 1, 0, "Tempodial", "tests");
        mConnection.Await();
    }
}

FakeInput::~FakeInput()
{
    if (IsThere()) {
        ::wl_proxy_destroy(mInput);
    }
}

void FakeInput::Move() const
{
    static bool isBack = false;
    isBack = !isBack;
    const auto step = ::wl_fixed_from_int(isBack ? -1 : 1);
    ::wl_proxy_marshal_flags(mInput, PointerMotion, nullptr, 1, 0, step, step);
    mConnection.Await();
}

}
