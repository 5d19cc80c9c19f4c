#pragma once

#include "records/order/order.h"

#include <string>
#include <vector>

namespace ItUnitechnik::Tree {

// The record tree as an indented outline a person reads: one line a record,
// its tag (or its kind, for the records without one) and its key fields.
// Texts are shown without the blanks that fill their fields.
std::string TreeText(const std::vector<Order>& orders);

} // namespace ItUnitechnik::Tree
