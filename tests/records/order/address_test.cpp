#include "records/order/address.h"

#include "framework/archive.h"
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

} // namespace
} // namespace ItUnitechnik
