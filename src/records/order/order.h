#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "records/element/element_part.h"
#include "records/order/address.h"
#include "records/order/date.h"
#include "records/order/project.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One production order: the record "HEADER__" ... "END HEADER__". Its layout
// changes at 502/503 and at 600.
class Order : public LaidOut<Order>, public ItCollectionImpl<std::vector<ElementPart>> {
public:
    Order();
    // Copies and moves store the version into the date again.
    Order(const Order& other);
    Order(Order&& other) noexcept;
    Order& operator=(const Order& other);
    Order& operator=(Order&& other) noexcept;

    bool Read(Archive& ar) override;
    // The version of a new order, given to the order, its date and each of
    // its elements with everything below them: the one place it is handed
    // down.
    void setVersion(std::int16_t newVersion);

    std::int16_t version = 502; // line 2; copied into `date`
    std::wstring orderNumber;   // line 3, 8 wide below 600, 20 from 600
    std::wstring orderText5 = L"     ";
    std::wstring orderText4 = L"    ";
    std::wstring orderText8;                            // line 3, right-aligned
    std::int16_t orderValue2 = 0;                       // line 3, two digits
    std::wstring legacyText2 = L"00";                   // line 3, up to 502
    std::wstring legacyText40 = std::wstring(40, L' '); // line 3, up to 502; the alternate stream from 600
    std::wstring orderText2;                            // line 3, above 502
    Project project;                                    // lines 4 to 7
    Address firstAddress;                               // lines 8 to 11
    Address secondAddress;                              // lines 12 to 15
    Date date;                                          // line 16
    std::wstring orderText40;                           // line 17, from 600
    std::vector<ElementPart> elementParts;              // the element records, between "END" and "END HEADER__"
};

template <class IO>
void Layout(IO& io, Order& order)
{
    io.Tag("HEADER__");
    io.UInt(3, order.version, "version");
    io.EndLine();
    // The date's year takes its width from the order's version.
    order.date.version = order.version;

    if (order.version < 600) {
        io.Text(8, order.orderNumber, "orderNumber");
        io.Blanks(2);
        io.Blank();
    } else {
        io.Text(20, order.orderNumber, "orderNumber");
        io.Blank();
    }
    io.Text(5, order.orderText5, "orderText5");
    io.Blank();
    io.Text(4, order.orderText4, "orderText4");
    io.Blank();
    io.RText(8, order.orderText8, Adjust::right, "orderText8");
    io.Blank();
    io.UInt(2, order.orderValue2, "orderValue2");
    io.Blank();
    if (order.version <= 502) {
        io.RText(2, order.legacyText2, "legacyText2");
        io.Blank();
        io.RText(40, order.legacyText40, "legacyText40");
    } else {
        io.RText(2, order.orderText2, "orderText2");
    }
    io.EndLine();

    io.Record(order.project);
    io.Record(order.firstAddress);
    io.Record(order.secondAddress);
    io.Record(order.date);
    io.EndLine();

    if (order.version >= 600) {
        io.Text(40, order.orderText40, "orderText40");
        io.EndLine();
    }

    io.Literal("0");
    io.Blank();
    const std::size_t count = io.Count(2, order.elementParts, "elementParts");
    io.Blank();
    io.Literal("000");
    io.EndLine();

    io.Tag("END");
    io.Each(count, order.elementParts);
    io.Tag("END HEADER__");
}

} // namespace ItUnitechnik
