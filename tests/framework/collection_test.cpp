#include "framework/collection.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ItUnitechnik {
namespace {

// A list record in miniature: counts its hook.
class Items : public ItCollectionImpl<std::vector<int>> {
public:
    Items() : ItCollectionImpl(Locate<&Items::items>) {}

    void Changed() override { log += "inner "; }

    std::vector<int> items;
    std::string log;
};

// A record that holds a list record and views it through the class flavour.
class Holder : public ItCollectionImpl<Items> {
public:
    Holder() : ItCollectionImpl(Locate<&Holder::inner>) {}

    void Changed() override { inner.log += "outer "; }

    Items inner;
};

TEST(VectorCollection, EveryOperationFiresChanged)
{
    Items c;
    c.Add(1);
    EXPECT_EQ(c.log, "inner ");
    c.Insert(c.items.begin(), 0);
    EXPECT_EQ(c.items, (std::vector<int>{0, 1}));
    c.Add(2);
    c.Add(3);
    c.log.clear();
    auto it = c.Remove(c.items.begin() + 1);
    EXPECT_EQ(*it, 2);
    EXPECT_EQ(c.log, "inner ");
    it = c.RemoveRange(c.items.begin(), c.items.begin() + 2);
    EXPECT_EQ(c.items, (std::vector<int>{3}));
    EXPECT_EQ(it, c.items.begin());
    c.log.clear();
    c.RemoveRange(c.items.begin(), c.items.begin());
    EXPECT_EQ(c.log, "inner ");
    EXPECT_EQ(c.items.size(), 1u);
}

TEST(VectorCollection, InsertOfAnElementFromInsideTheVector)
{
    Items c;
    c.Add(7);
    c.Add(8);
    c.Insert(c.items.begin(), c.items[1]);
    EXPECT_EQ(c.items, (std::vector<int>{8, 7, 8}));
}

TEST(VectorCollection, ClearKeepsCapacityAndFiresEvenWhenEmpty)
{
    Items c;
    c.Clear();
    EXPECT_EQ(c.log, "inner ");
    for (int i = 0; i < 10; ++i) {
        c.Add(i);
    }
    const auto capacity = c.items.capacity();
    c.Clear();
    EXPECT_TRUE(c.items.empty());
    EXPECT_EQ(c.items.capacity(), capacity);
}

TEST(VectorCollection, ACopyWorksOnItsOwnVector)
{
    Items a;
    a.Add(1);
    Items b(a);
    b.Add(2);
    EXPECT_EQ(a.items, (std::vector<int>{1}));
    EXPECT_EQ(b.items, (std::vector<int>{1, 2}));
    Items c;
    c = b;
    c.Add(3);
    EXPECT_EQ(b.items.size(), 2u);
    EXPECT_EQ(c.items, (std::vector<int>{1, 2, 3}));
}

TEST(VectorCollection, AMoveWorksOnItsOwnVectorAndCannotThrow)
{
    static_assert(std::is_nothrow_move_constructible<Items>::value, "a vector must move it when it grows");
    static_assert(std::is_nothrow_move_assignable<Items>::value, "a move assignment must not throw");
    Items a;
    a.Add(1);
    a.Add(2);
    Items b(std::move(a));
    b.Add(3);
    EXPECT_EQ(b.items, (std::vector<int>{1, 2, 3}));
    Items c;
    c = std::move(b);
    c.Add(4);
    EXPECT_EQ(c.items, (std::vector<int>{1, 2, 3, 4}));
}

TEST(VectorCollection, EachOfAGrownVectorWorksOnItsOwnVector)
{
    std::vector<Items> all;
    for (int i = 0; i < 100; ++i) {
        all.emplace_back();
        all.back().Add(i);
    }
    for (int i = 0; i < 100; ++i) {
        all[static_cast<std::size_t>(i)].Add(-i);
    }
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(all[static_cast<std::size_t>(i)].items, (std::vector<int>{i, -i}));
    }
}

TEST(ClassCollection, InnerHookFiresBeforeOuter)
{
    Holder h;
    h.Add(5);
    EXPECT_EQ(h.inner.log, "inner outer ");
    h.inner.log.clear();
    h.Insert(h.inner.items.begin(), 4);
    EXPECT_EQ(h.inner.log, "inner outer ");
    h.inner.log.clear();
    h.Remove(h.inner.items.begin());
    EXPECT_EQ(h.inner.log, "inner outer ");
    h.inner.log.clear();
    h.RemoveRange(h.inner.items.begin(), h.inner.items.end());
    EXPECT_EQ(h.inner.log, "inner outer ");
    h.inner.log.clear();
    h.Clear();
    EXPECT_EQ(h.inner.log, "inner outer ");
    EXPECT_TRUE(h.inner.items.empty());
}

TEST(ClassCollection, ACopyWorksOnItsOwnMember)
{
    Holder a;
    a.Add(1);
    Holder b(a);
    b.Add(2);
    EXPECT_EQ(a.inner.items.size(), 1u);
    EXPECT_EQ(b.inner.items.size(), 2u);
}

TEST(NextNumber, IsTheCountSoFarPlusOne)
{
    EXPECT_EQ(NextNumber(std::vector<int>{}), 1);
    EXPECT_EQ(NextNumber(std::vector<int>{7, 7, 7}), 4);
}

} // namespace
} // namespace ItUnitechnik
