#include "records/order/address.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(AddressWrite, TheThirdLineIsTheShortOne)
{
    Address address;
    address.addressText1 = L"Precast Works Ltd";
    address.addressText2 = L"Quarry Road 12";
    address.addressText3 = L"D-12345 B"; // 9 characters, cut to 8
    address.addressText4 = L"";
    StringArchive s;
    EXPECT_TRUE(address.Write(s.archive));
    EXPECT_EQ(s.Text(), L"Precast Works Ltd        \n"
                        L"Quarry Road 12           \n"
                        L"D-12345 \n"
                        L"                         \n");
}

TEST(AddressWrite, ATenCharacterThirdTextIsCutToEight)
{
    Address address;
    address.addressText3 = L"0123456789";
    StringArchive s;
    address.Write(s.archive);
    EXPECT_NE(s.Text().find(L"\n01234567\n"), std::wstring::npos);
}

TEST(AddressRead, TheThirdTextKeepsItsTrailingBlanks)
{
    Address address;
    address.addressText3 = L"AB";
    StringArchive out;
    address.Write(out.archive);
    StringArchive in(out.Text());
    Address back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.addressText3, L"AB      ");
    EXPECT_EQ(back.addressText3.size(), 8u);
    EXPECT_EQ(back.addressText1, std::wstring(25, L' '));
}

TEST(AddressRead, FourWholeLinesWithTheirBlanksAndNoCarriageReturn)
{
    StringArchive in(L"Precast Works Ltd        \nQuarry Road 12\r\nD-12345 \n\nnext\n");
    Address address;
    EXPECT_TRUE(address.Read(in.archive));
    EXPECT_EQ(address.addressText1, L"Precast Works Ltd        ");
    EXPECT_EQ(address.addressText2, L"Quarry Road 12");
    EXPECT_EQ(address.addressText3, L"D-12345 ");
    EXPECT_EQ(address.addressText4, L"");
    EXPECT_EQ(ReadLine(in.archive), L"next");
}

TEST(AddressRead, FailsWhenTheLinesRunOut)
{
    StringArchive in(L"one\ntwo\nthree\n");
    Address address;
    EXPECT_FALSE(address.Read(in.archive));
    EXPECT_EQ(address.addressText3, L"three");
}

} // namespace
} // namespace ItUnitechnik
