#pragma once

#include "records/order/order.h"

#include <cstdint>
#include <vector>

namespace ItUnitechnik::Tool::Convert {

// Gives every record of the orders the format version, as startOrder and the
// adders give it to every record they make: the order, its date, its
// elements and every record in them, down to the curves of the outlines. An
// element that comes to 600 or above from below gets the text of its number,
// as startOrder would have set it.
void SetFormatVersion(std::vector<Order>& orders, std::uint16_t version);

} // namespace ItUnitechnik::Tool::Convert
