#include "records/order/order.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

#include <utility>

namespace ItUnitechnik {

Order::Order() : ItCollectionImpl<std::vector<ElementPart>>(Locate<&Order::elementParts>)
{
    date.version = version;
}

Order::Order(const Order& other)
    : LaidOut(other), ItCollectionImpl<std::vector<ElementPart>>(other), version(other.version),
      orderNumber(other.orderNumber), orderText5(other.orderText5), orderText4(other.orderText4),
      orderText8(other.orderText8), orderValue2(other.orderValue2), legacyText2(other.legacyText2),
      legacyText40(other.legacyText40), orderText2(other.orderText2), project(other.project),
      firstAddress(other.firstAddress), secondAddress(other.secondAddress), date(other.date),
      orderText40(other.orderText40), elementParts(other.elementParts)
{
    date.version = version;
}

Order::Order(Order&& other) noexcept
    : LaidOut(other), ItCollectionImpl<std::vector<ElementPart>>(std::move(other)), version(other.version),
      orderNumber(std::move(other.orderNumber)), orderText5(std::move(other.orderText5)),
      orderText4(std::move(other.orderText4)), orderText8(std::move(other.orderText8)), orderValue2(other.orderValue2),
      legacyText2(std::move(other.legacyText2)), legacyText40(std::move(other.legacyText40)),
      orderText2(std::move(other.orderText2)), project(std::move(other.project)),
      firstAddress(std::move(other.firstAddress)), secondAddress(std::move(other.secondAddress)),
      date(std::move(other.date)), orderText40(std::move(other.orderText40)),
      elementParts(std::move(other.elementParts))
{
    date.version = version;
}

Order& Order::operator=(const Order& other)
{
    version = other.version;
    orderNumber = other.orderNumber;
    orderText5 = other.orderText5;
    orderText4 = other.orderText4;
    orderText8 = other.orderText8;
    orderValue2 = other.orderValue2;
    legacyText2 = other.legacyText2;
    legacyText40 = other.legacyText40;
    orderText2 = other.orderText2;
    project = other.project;
    firstAddress = other.firstAddress;
    secondAddress = other.secondAddress;
    date = other.date;
    orderText40 = other.orderText40;
    elementParts = other.elementParts;
    date.version = version;
    return *this;
}

Order& Order::operator=(Order&& other) noexcept
{
    if (this == &other) {
        date.version = version;
        return *this;
    }
    version = other.version;
    orderNumber = std::move(other.orderNumber);
    orderText5 = std::move(other.orderText5);
    orderText4 = std::move(other.orderText4);
    orderText8 = std::move(other.orderText8);
    orderValue2 = other.orderValue2;
    legacyText2 = std::move(other.legacyText2);
    legacyText40 = std::move(other.legacyText40);
    orderText2 = std::move(other.orderText2);
    project = std::move(other.project);
    firstAddress = std::move(other.firstAddress);
    secondAddress = std::move(other.secondAddress);
    date = std::move(other.date);
    orderText40 = std::move(other.orderText40);
    elementParts = std::move(other.elementParts);
    date.version = version;
    return *this;
}

void Order::setVersion(std::int16_t newVersion)
{
    version = newVersion;
    date.version = newVersion;
    for (ElementPart& element : elementParts) {
        element.setVersion(newVersion);
    }
}

bool Order::Read(Archive& ar)
{
    // Not the order's tag: give up at once, leaving `valid` and the stream
    // as they are.
    if (!Matches(ReadToken(ar), L"HEADER__")) {
        return false;
    }
    ar >> version;
    date.version = version;
    SkipLine(ar);

    if (version < 600) {
        GetText(ar, 8, orderNumber);
        SkipChar(ar);
        SkipChar(ar);
    } else {
        GetText(ar, 20, orderNumber);
    }
    SkipChar(ar);
    Trim(orderNumber);

    // Kept as they stand: orderText8 its leading blanks, the others their
    // trailing ones.
    GetText(ar, 5, orderText5);
    SkipChar(ar);
    GetText(ar, 4, orderText4);
    SkipChar(ar);
    GetText(ar, 8, orderText8);

    ar >> orderValue2;

    // The reader splits at 600 where the writer splits at 502: a file of 503
    // to 599 does not read back.
    SkipChar(ar);
    ClearSkipWs(ar);
    if (version < 600) {
        GetText(ar, 2, legacyText2);
        SkipChar(ar);
        GetText(ar, 40, legacyText40);
    } else {
        GetText(ar, 2, orderText2);
    }
    SetSkipWs(ar);
    SkipLine(ar);

    project.Read(ar);
    firstAddress.Read(ar);
    secondAddress.Read(ar);
    date.Read(ar);

    if (version >= 600) {
        // What stands behind the date on its line, normally nothing: the text
        // line the writer put below it is skipped next, so orderText40 does not
        // survive a round trip.
        orderText40 = ReadRestOfLine(ar);
        Trim(orderText40);
    }

    SkipLine(ar);
    ReadToken(ar);
    std::int32_t elementCount = 0;
    ar >> elementCount;
    SkipLine(ar);
    if (!ExpectToken(ar, L"END")) {
        return false;
    }

    // An element that fails is not kept and does not stop the loop; once the
    // stream itself has failed no later element can be read, so a count far
    // beyond what the file holds ends there.
    ReadElements(
        ar, elementCount, [] { return ElementPart(); }, elementParts);

    if (!ExpectLine(ar, L"END HEADER__")) {
        return false;
    }
    return Healthy(ar);
}

} // namespace ItUnitechnik
