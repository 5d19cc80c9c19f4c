// What the tests of copies and moves share. Every record with collections of
// its own: a copy, a copy assignment, a move and a move assignment take every
// member, and the result works through its collections on its own members,
// never on those of the record it came from. A vector of records moves them
// when it grows.
#pragma once

#include "framework/archive.h"
#include "geometry/geo_data.h"
#include "geometry/line_segment.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ItUnitechnik::CopiesAndMovesTesting {

using Testing::StringArchive;

template <class T>
std::wstring Written(T& record)
{
    StringArchive s;
    record.Write(s.archive);
    return s.Text();
}

inline GeoData Piece(std::int32_t version, std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return GeoData(version, L'S', std::make_unique<LineSegment>(version, Point2d(x0, y0), Point2d(x1, y1)));
}

// What a test says about one kind of record: how to make a filled one and an
// empty one, how to add one child through each of its collections, the sizes
// of those collections, and the members that its Write does not show.
template <class T>
struct Kind {
    std::function<T()> filled;
    std::function<T()> empty;
    std::function<void(T&)> addThroughEachCollection;
    std::function<std::vector<std::size_t>(const T&)> sizes;
    std::function<void(T&, T&)> expectSameUnwritten = [](T&, T&) {};
};

template <class T>
void ExpectItsOwn(const Kind<T>& kind, T& result, T& original, const std::wstring& text, const char* how)
{
    SCOPED_TRACE(how);
    EXPECT_EQ(Written(result), text);
    kind.expectSameUnwritten(result, original);
    std::vector<std::size_t> grown = kind.sizes(original);
    for (std::size_t& size : grown) {
        ++size;
    }
    const std::vector<std::size_t> before = kind.sizes(original);
    kind.addThroughEachCollection(result);
    EXPECT_EQ(kind.sizes(result), grown);
    EXPECT_EQ(kind.sizes(original), before);
    EXPECT_EQ(Written(original), text);
}

template <class T>
void ExpectCopiesAndMovesOfItsOwn(const Kind<T>& kind)
{
    static_assert(std::is_nothrow_move_constructible<T>::value, "a vector must move it when it grows");
    static_assert(std::is_nothrow_move_assignable<T>::value, "a move assignment must not throw");

    T original = kind.filled();
    const std::wstring text = Written(original);
    T blank = kind.empty();
    ASSERT_NE(text, Written(blank)) << "the filled record must differ from an empty one";
    for (std::size_t size : kind.sizes(original)) {
        ASSERT_GT(size, 0u) << "every collection must hold something";
    }

    T copied(original);
    ExpectItsOwn(kind, copied, original, text, "copy");

    T assigned = kind.empty();
    assigned = original;
    ExpectItsOwn(kind, assigned, original, text, "copy assignment");

    T source = kind.filled();
    T moved(std::move(source));
    ExpectItsOwn(kind, moved, original, text, "move");

    T otherSource = kind.filled();
    T moveAssigned = kind.empty();
    moveAssigned = std::move(otherSource);
    ExpectItsOwn(kind, moveAssigned, original, text, "move assignment");

    // Each record of a grown vector works on its own members.
    std::vector<T> many;
    for (int i = 0; i < 9; ++i) {
        many.push_back(kind.filled());
    }
    for (T& each : many) {
        ExpectItsOwn(kind, each, original, text, "in a grown vector");
    }
}

} // namespace ItUnitechnik::CopiesAndMovesTesting
