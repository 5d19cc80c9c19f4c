// What the tests of an order share: a sample order of a version and the text
// it writes.
#pragma once

#include "records/order/order.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace ItUnitechnik::OrderTesting {

using Testing::StringArchive;

inline Order Sample(std::int16_t version)
{
    Order order;
    order.version = version;
    order.date.version = version;
    order.orderNumber = L"ORD-1";
    order.orderText5 = L"ABCDE";
    order.orderText4 = L"WXYZ";
    order.orderText8 = L"R8";
    order.orderValue2 = 7;
    order.orderText2 = L"XY";
    order.orderText40 = L"forty";
    order.project.projectText1 = L"Tower A";
    order.firstAddress.addressText1 = L"Precast Works";
    order.secondAddress.addressText4 = L"Site";
    order.date.day = 7;
    order.date.month = 3;
    order.date.year = 2024;
    return order;
}

inline std::wstring Written(Order order)
{
    StringArchive s;
    EXPECT_TRUE(order.Write(s.archive));
    return s.Text();
}

} // namespace ItUnitechnik::OrderTesting
