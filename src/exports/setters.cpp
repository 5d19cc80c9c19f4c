#include "itunitechnik.h"

#include "exports/document.h"
#include "exports/host_text.h"

#include <cmath>

using ItUnitechnik::ConcreteLayer;
using ItUnitechnik::Date;
using ItUnitechnik::ElementPart;
using ItUnitechnik::FromHost;
using ItUnitechnik::OnCurrentElement;
using ItUnitechnik::Order;
using ItUnitechnik::theDocument;

extern "C" {

// Nothing thrown inside the library reaches the host: each export ends in a
// handler that gives the result the header names for that case, its own or
// that of OnCurrentElement.

ITUNITECHNIK_API void setProjectData(const it_char16* const* texts)
try {
    for (Order& order : theDocument.orders) {
        const std::wstring number = FromHost(texts[IT_PROJECT_ORDER_NUMBER]);
        order.orderNumber = number.empty() ? std::wstring(L"12345678") : number;
        order.orderText5 = FromHost(texts[IT_PROJECT_ORDER_TEXT5]);
        order.orderText4 = FromHost(texts[IT_PROJECT_ORDER_TEXT4]);
        order.orderText8 = FromHost(texts[IT_PROJECT_ORDER_TEXT8]);
        // Throws for a date that is too short or has no number in a part: the
        // call ends there, this order keeps its other fields as they were,
        // the orders before it are complete and those behind it untouched.
        order.date = Date(FromHost(texts[IT_PROJECT_DATE]), order.version);
        order.orderText40 = FromHost(texts[IT_PROJECT_ORDER_TEXT40]);
        order.orderText2 = FromHost(texts[IT_PROJECT_ORDER_TEXT2]);
        order.project.projectText1 = FromHost(texts[IT_PROJECT_TEXT1]);
        order.project.projectText2 = FromHost(texts[IT_PROJECT_TEXT1 + 1]);
        order.project.projectText3 = FromHost(texts[IT_PROJECT_TEXT1 + 2]);
        order.project.projectText4 = FromHost(texts[IT_PROJECT_TEXT1 + 3]);
        order.firstAddress.addressText1 = FromHost(texts[IT_PROJECT_FIRST_ADDRESS1]);
        order.firstAddress.addressText2 = FromHost(texts[IT_PROJECT_FIRST_ADDRESS1 + 1]);
        order.firstAddress.addressText3 = FromHost(texts[IT_PROJECT_FIRST_ADDRESS1 + 2]);
        order.firstAddress.addressText4 = FromHost(texts[IT_PROJECT_FIRST_ADDRESS1 + 3]);
        order.secondAddress.addressText1 = FromHost(texts[IT_PROJECT_SECOND_ADDRESS1]);
        order.secondAddress.addressText2 = FromHost(texts[IT_PROJECT_SECOND_ADDRESS1 + 1]);
        order.secondAddress.addressText3 = FromHost(texts[IT_PROJECT_SECOND_ADDRESS1 + 2]);
        order.secondAddress.addressText4 = FromHost(texts[IT_PROJECT_SECOND_ADDRESS1 + 3]);
    }
} catch (...) {
    // Nothing to report: the call ends here.
}

ITUNITECHNIK_API void setSlabInfoFields(const it_char16* slabInfo1, const it_char16* slabInfo2,
                                        const it_char16* slabInfo3, const it_char16* slabInfo4)
{
    // Guarded like every other element export, so a call before startOrder
    // does nothing.
    OnCurrentElement([&](ElementPart& element) {
        element.slabInfo1 = FromHost(slabInfo1);
        element.slabInfo2 = FromHost(slabInfo2);
        element.slabInfo3 = FromHost(slabInfo3);
        element.slabInfo4 = FromHost(slabInfo4);
    });
}

ITUNITECHNIK_API void setThicknesses(int32_t thickness, int32_t secondThickness)
{
    OnCurrentElement([&](ElementPart& element) {
        element.thickness = thickness;
        element.secondThickness = secondThickness;
    });
}

ITUNITECHNIK_API void setDoubleWallGap(int32_t doubleWallGap)
{
    OnCurrentElement([&](ElementPart& element) { element.doubleWallGap = doubleWallGap; });
}

ITUNITECHNIK_API void addLayer(uint16_t layerKind, double thicknessMetres, double firstFactor, double secondFactor,
                               const it_char16* layerName)
{
    OnCurrentElement([&](ElementPart& element) {
        ConcreteLayer layer(element.version);
        layer.layerNumber = static_cast<int32_t>(element.concreteLayers.size()) + 1;
        layer.layerKind = static_cast<int16_t>(layerKind);
        layer.layerThickness = ItUnitechnik::TruncateToInt32(std::round(thicknessMetres * 1000.0));
        layer.layerName = FromHost(layerName);
        layer.firstFactor = firstFactor;
        layer.secondFactor = secondFactor;
        element.Add(layer);
        element.layerProductSum += firstFactor * secondFactor;
        // The running total overwrites the second thickness too.
        const int32_t total = ItUnitechnik::WrappingAdd(element.thickness, layer.layerThickness);
        element.thickness = total;
        element.secondThickness = total;
    });
}

} // extern "C"
