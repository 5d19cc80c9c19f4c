#include "reading/loader.h"

#include "framework/read_idioms.h"
#include "records/order/lot.h"

#include <algorithm>

namespace ItUnitechnik {

void Loader::Document(std::vector<Order>& orders, bool& trailingData)
{
    while (!in_.AtEnd()) {
        if (!in_.NextLineIs("HEADER__")) {
            // Anything but an order behind the orders read so far.
            trailingData = !orders.empty();
            in_.SetRecord("");
            in_.FailHere("\"HEADER__\" or the end of the file");
        }
        orders.emplace_back();
        LoadOrder(orders.back());
    }
}

std::int16_t Loader::Head(const char* tag)
{
    in_.SetRecord(tag);
    in_.Tag(tag);
    const auto version = in_.UInt<std::int16_t>(3);
    in_.EndLine();
    return version;
}

std::size_t Loader::Count(std::int64_t value)
{
    // Each element of a list stands on a line of its own at the least.
    if (value < 0) {
        in_.Fail("a count of zero or more");
    }
    return static_cast<std::size_t>(value);
}

std::wstring Loader::Code(int width)
{
    std::wstring code = in_.Text(width);
    if (code.find(L' ') != std::wstring::npos) {
        Note(Departure::textsByPlace);
    }
    return code;
}

void Loader::LoadOrder(Order& order)
{
    order.version = Head("HEADER__");
    order.date.version = order.version;

    // Line 3.
    if (order.version < 600) {
        order.orderNumber = in_.Text(8);
        in_.Blanks(3);
    } else {
        order.orderNumber = in_.Text(20);
        in_.Blank();
    }
    std::wstring trimmed = order.orderNumber;
    Trim(trimmed);
    trimmed.resize(order.orderNumber.size(), L' ');
    if (trimmed != order.orderNumber) {
        Note(Departure::orderNumberUntrimmed);
    }
    order.orderText5 = in_.Text(5);
    in_.Blank();
    order.orderText4 = in_.Text(4);
    in_.Blank();
    order.orderText8 = in_.Text(8);
    in_.Blank();
    order.orderValue2 = in_.UInt<std::int16_t>(2);
    in_.Blank();
    if (order.version <= 502) {
        order.legacyText2 = in_.Text(2);
        in_.Blank();
        order.legacyText40 = in_.Text(40);
    } else {
        if (order.version < 600) {
            Note(Departure::orderLineFrom503);
        }
        order.orderText2 = in_.Text(2);
    }
    in_.EndLine();

    LoadProject(order.project);
    LoadAddress(order.firstAddress);
    LoadAddress(order.secondAddress);
    LoadDate(order.date);
    in_.EndLine();

    if (order.version >= 600) {
        order.orderText40 = in_.Text(40);
        if (order.orderText40.find_first_not_of(L' ') != std::wstring::npos) {
            Note(Departure::orderTextOwnLine);
        }
        in_.EndLine();
    }

    in_.Literal("0");
    in_.Blank();
    const std::size_t count = Count(in_.UInt<std::int64_t>(2));
    in_.Blank();
    in_.Literal("000");
    in_.EndLine();
    in_.Tag("END");
    if (count == 0) {
        Note(Departure::orderWithoutElements);
    }

    for (std::size_t i = 0; i < count; ++i) {
        order.elementParts.emplace_back();
        LoadElement(order.elementParts.back());
    }
    in_.SetRecord("HEADER__");
    in_.Tag("END HEADER__");
}

void Loader::LoadProject(Project& project)
{
    for (std::wstring* text :
         {&project.projectText1, &project.projectText2, &project.projectText3, &project.projectText4}) {
        *text = in_.Text(20);
        in_.EndLine();
    }
}

void Loader::LoadAddress(Address& address)
{
    address.addressText1 = in_.Text(25);
    in_.EndLine();
    address.addressText2 = in_.Text(25);
    in_.EndLine();
    address.addressText3 = in_.Text(8);
    in_.EndLine();
    address.addressText4 = in_.Text(25);
    in_.EndLine();
}

void Loader::LoadDate(Date& date)
{
    date.day = in_.UInt<std::int16_t>(2);
    in_.Literal(".");
    date.month = in_.UInt<std::int16_t>(2);
    in_.Literal(".");
    date.year = in_.UInt<std::int16_t>(date.version < 502 ? 2 : 4);
}

void Loader::LoadLot(Lot& lot)
{
    lot.version = Head("LOT_____");
    lot.lotNumber = in_.UInt<std::int32_t>(2);
    in_.Blank();
    lot.lotText = in_.Text(lot.version < 600 ? 8 : 20);
    in_.Blank();
    lot.lotReal1 = in_.Real(1, 3);
    in_.Blank();
    lot.lotCode2 = in_.Text(2);
    in_.Blank();
    lot.lotReal2 = in_.Real(2, 3);
    in_.Blank();
    lot.lotValue1 = in_.UInt<std::int32_t>(6);
    in_.Blank();
    lot.lotValue2 = in_.UInt<std::int32_t>(6);
    in_.Blank();
    lot.lotValue3 = in_.UInt<std::int32_t>(6);
    in_.Blank();
    lot.lotValue4 = in_.UInt<std::int32_t>(3);
    if (lot.version >= 600) {
        in_.Blank();
        lot.lotText20 = in_.Text(20);
        Note(Departure::lotTextBehindBlank);
    }
    in_.EndLine();
    in_.Tag("END");
    LoadContours(lot.contourData);
    LoadCutouts(lot.cutoutData);
    in_.SetRecord("LOT_____");
    in_.Tag("END LOT_____");
}

} // namespace ItUnitechnik
