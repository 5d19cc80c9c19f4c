#include "records/element/plaster.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(Plaster, DefaultPlaster)
{
    StringArchive s;
    Plaster plaster;
    EXPECT_TRUE(plaster.Write(s.archive));
    EXPECT_EQ(s.Text(), L"000"
                        L" "
                        L"        "
                        L" "
                        L"0.000"
                        L" "
                        L"00000.0");
}

TEST(Plaster, WritesItsFields)
{
    StringArchive s;
    Plaster plaster;
    plaster.plasterNumber = 12;
    plaster.plasterName = L"Kalk";
    plaster.firstValue = 1.25;
    plaster.secondValue = 30.5;
    EXPECT_TRUE(plaster.Write(s.archive));
    EXPECT_EQ(s.Text(), L"012 Kalk     1.250 00030.5");
}

TEST(Plaster, LongNameIsCutAndNumbersAreNot)
{
    StringArchive s;
    Plaster plaster;
    plaster.plasterNumber = 1234;
    plaster.plasterName = L"Kalkzementputz";
    plaster.firstValue = 12.3456;
    plaster.secondValue = -2.0;
    plaster.Write(s.archive);
    EXPECT_EQ(s.Text(), L"1234 Kalkzeme 12.346 000-2.0");
}

TEST(Plaster, ReadsItsFieldsWithTheNamesBlanks)
{
    StringArchive s(L"012 Kalk     1.250 00030.5");
    Plaster plaster;
    EXPECT_TRUE(plaster.Read(s.archive));
    EXPECT_EQ(plaster.plasterNumber, 12);
    EXPECT_EQ(plaster.plasterName, L"Kalk    ");
    EXPECT_EQ(plaster.firstValue, 1.25);
    EXPECT_EQ(plaster.secondValue, 30.5);
}

TEST(Plaster, ReadsTheDefaultPlasterBack)
{
    StringArchive s(L"000          0.000 00000.0");
    Plaster plaster;
    plaster.plasterNumber = 5;
    plaster.firstValue = 1.0;
    EXPECT_TRUE(plaster.Read(s.archive));
    EXPECT_EQ(plaster.plasterNumber, 0);
    EXPECT_EQ(plaster.plasterName, L"        ");
    EXPECT_EQ(plaster.firstValue, 0.0);
    EXPECT_EQ(plaster.secondValue, 0.0);
}

TEST(Plaster, ReadFailsOnAMissingValue)
{
    StringArchive s(L"012 Kalk     1.250");
    Plaster plaster;
    EXPECT_FALSE(plaster.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
}

TEST(Plaster, ResultsIncludeTheArchivesValidFlag)
{
    StringArchive s;
    s.archive.valid = false;
    Plaster plaster;
    EXPECT_FALSE(plaster.Write(s.archive));
}

} // namespace
} // namespace ItUnitechnik
