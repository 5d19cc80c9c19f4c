#pragma once

#include "records/order/order.h"

#include <cstddef>
#include <string>
#include <vector>

// The elements of a document in file order, each with the order it stands
// in, and the names a person knows them by.
namespace ItUnitechnik::Drawing {

struct ElementPlace {
    std::size_t orderIndex = 0;   // the order's place in the file, from 1
    std::size_t elementIndex = 0; // the element's place in its order, from 1
    const Order* order = nullptr;
    const ElementPart* element = nullptr;
};

std::vector<ElementPlace> ElementPlaces(const std::vector<Order>& orders);

// The order's number as its header line carries it, without fill.
std::string OrderNumberText(const Order& order);

// The element's number: from version 600 on its text, below it the number.
std::string ElementNumberText(const ElementPart& element);

} // namespace ItUnitechnik::Drawing
