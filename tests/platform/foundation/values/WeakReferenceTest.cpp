#include "tarnmodel/platform/foundation/values/WeakReference.h"

#include <gtest/gtest.h>

#include <optional>

using namespace tarn;

namespace {

struct Delegate : WeaklyReferenced { };

TEST(WeakReference, IsNullOnceItsObjectHasEnded)
{
    std::optional<Delegate> delegate(std::in_place);
    const WeakReference<Delegate> reference(&*delegate);
    EXPECT_EQ(reference.get(), &*delegate);
    delegate.reset();
    EXPECT_EQ(reference.get(), nullptr);
}

TEST(WeakReference, IsNullFromTheStart)
{
    EXPECT_EQ(WeakReference<Delegate>().get(), nullptr);
    EXPECT_EQ(WeakReference<Delegate>(nullptr).get(), nullptr);
}

TEST(WeakReference, DoesNotFollowACopy)
{
    std::optional<Delegate> original(std::in_place);
    const WeakReference<Delegate> reference(&*original);
    const Delegate copy = *original;
    Delegate assigned;
    const WeakReference<Delegate> toAssigned(&assigned);
    assigned = *original;
    original.reset();
    EXPECT_EQ(reference.get(), nullptr);
    EXPECT_EQ(toAssigned.get(), &assigned);
    EXPECT_NE(WeakReference<const Delegate>(&copy).get(), nullptr);
}

} // namespace
