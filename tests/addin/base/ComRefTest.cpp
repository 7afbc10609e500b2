#include "addin/base/ComRef.h"

#include <gtest/gtest.h>

#include <utility>

namespace tempodial {

namespace {

/// An object that counts its references and is never freed.
class Counted final : public IUnknown
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        *object = iid == IID_IUnknown ? this : nullptr;
        if (*object == nullptr) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }

    ULONG references = 0;
};

}

TEST(ComRefTest, Reference_CopiedMovedAndCleared_CountsEachHolder)
{
    Counted object;
    {
        ComRef<Counted> first(&object);
        EXPECT_EQ(object.references, 1U);
        auto second = first;
        EXPECT_EQ(object.references, 2U);
        const auto third = std::move(second);
        EXPECT_EQ(object.references, 2U);
        EXPECT_FALSE(second); // NOLINT(bugprone-use-after-move)
        first = third;
        EXPECT_EQ(object.references, 2U);
        first.Clear();
        first.Clear();
        EXPECT_EQ(object.references, 1U);
    }
    EXPECT_EQ(object.references, 0U);
}

TEST(ComRefTest, AdoptAndDetach_PassReferencesOn)
{
    Counted object;
    object.AddRef();
    auto reference = ComRef<Counted>::Adopt(&object);
    EXPECT_EQ(object.references, 1U);
    EXPECT_EQ(reference.Detach(), &object);
    EXPECT_FALSE(reference);
    EXPECT_EQ(object.references, 1U);
}

TEST(ComRefTest, Put_WithAnObjectHeld_LetsItGo)
{
    Counted object;
    ComRef<Counted> reference(&object);
    EXPECT_EQ(*reference.Put(), nullptr);
    EXPECT_EQ(object.references, 0U);
}

TEST(ComRefTest, As_OtherInterface_IsNothingWhenItIsRefused)
{
    Counted object;
    const ComRef<Counted> reference(&object);
    EXPECT_EQ(reference.As<IUnknown>().Get(), &object);
    EXPECT_FALSE(reference.As<IDispatch>());
    EXPECT_FALSE(ComRef<Counted>().As<IUnknown>());
    EXPECT_EQ(object.references, 1U);
}

}
