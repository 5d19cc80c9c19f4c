#include "itunitechnik.h"

#include "exports/document.h"
#include "exports/host_text.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

using ItUnitechnik::ElementPart;
using ItUnitechnik::Order;
using ItUnitechnik::Point3d;
using ItUnitechnik::theDocument;

extern "C" {

// Nothing thrown inside the library reaches the host: each export ends in a
// handler that gives the result the header names for that case.

ITUNITECHNIK_API int32_t startOrder(uint16_t orderValue, int32_t elementNumberArg, const double* placement,
                                    uint16_t version, const it_char16* elementTextArg, double elementMeasureArg,
                                    bool clearDocument)
try {
    if (clearDocument) {
        theDocument.orders.clear(); // directly on the vector, no hook
    }
    Order order;
    order.orderValue2 = static_cast<int16_t>(orderValue);

    ElementPart element;
    Point3d* const points[3] = {&element.firstPoint, &element.secondPoint, &element.thirdPoint};
    for (std::size_t i = 0; i < 3; ++i) {
        points[i]->x = ItUnitechnik::TruncateToInt32(std::round(placement[3 * i]));
        points[i]->y = ItUnitechnik::TruncateToInt32(std::round(placement[3 * i + 1]));
        points[i]->z = ItUnitechnik::TruncateToInt32(std::round(placement[3 * i + 2]));
    }
    element.hasExternalIron = true;
    element.elementMeasure = elementMeasureArg;
    element.elementNumber = static_cast<int16_t>(elementNumberArg);
    element.elementNumberText = std::to_wstring(elementNumberArg);
    element.elementText30 = ItUnitechnik::FromHost(elementTextArg);
    element.firstPlaster = ItUnitechnik::Plaster();
    element.secondPlaster = ItUnitechnik::Plaster();
    // Moved in rather than copied; each collection's hook runs as after an Add.
    order.elementParts.push_back(std::move(element));
    order.setVersion(static_cast<int16_t>(version));
    order.Changed();

    theDocument.orders.push_back(std::move(order));
    theDocument.Changed();
    return 1;
} catch (...) {
    return 0;
}

ITUNITECHNIK_API int32_t endDocument(const it_char16* path)
try {
    return theDocument.Save(ItUnitechnik::FromHost(path)) ? 1 : 0;
} catch (...) {
    return 0;
}

} // extern "C"
