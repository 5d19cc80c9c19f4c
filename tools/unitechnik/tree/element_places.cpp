#include "tree/element_places.h"

#include "plant/plant_text.h"

namespace ItUnitechnik::Drawing {

std::vector<ElementPlace> ElementPlaces(const std::vector<Order>& orders)
{
    std::vector<ElementPlace> places;
    for (std::size_t o = 0; o < orders.size(); ++o) {
        for (std::size_t e = 0; e < orders[o].elementParts.size(); ++e) {
            places.push_back({o + 1, e + 1, &orders[o], &orders[o].elementParts[e]});
        }
    }
    return places;
}

std::string OrderNumberText(const Order& order)
{
    return Plant::Trimmed(order.orderNumber);
}

std::string ElementNumberText(const ElementPart& element)
{
    return element.version < 600 ? std::to_string(element.elementNumber) : Plant::Trimmed(element.elementNumberText);
}

} // namespace ItUnitechnik::Drawing
