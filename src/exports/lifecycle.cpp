#include "itunitechnik.h"

#include "exports/document.h"
#include "exports/host_text.h"

using ItUnitechnik::Order;
using ItUnitechnik::theDocument;

extern "C" {

ITUNITECHNIK_API int32_t startOrder(uint16_t orderValue, int32_t elementNumberArg,
                                    const double* placement, uint16_t version,
                                    const it_char16* elementTextArg, double elementMeasureArg,
                                    bool clearDocument)
{
    static_cast<void>(elementNumberArg);
    static_cast<void>(placement);
    static_cast<void>(elementTextArg);
    static_cast<void>(elementMeasureArg);
    if (clearDocument) {
        theDocument.orders.clear(); // directly on the vector, no hook
    }
    Order order;
    order.orderValue2 = static_cast<int16_t>(orderValue);
    order.version = static_cast<int16_t>(version);
    order.date.version = order.version;
    theDocument.Add(order);
    return 1;
}

ITUNITECHNIK_API int32_t endDocument(const it_char16* path)
{
    return theDocument.Save(ItUnitechnik::FromHost(path)) ? 1 : 0;
}

} // extern "C"
