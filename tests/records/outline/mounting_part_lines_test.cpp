// The lines of mounted parts and of their record, their defaults and their
// copies.
#include "records/outline/mounting_part.h"

#include "records/outline/mounting_part_test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using MountingPartTesting::AnchorChannel;
using MountingPartTesting::ExpectSameFields;
using MountingPartTesting::Spaces;
using MountingPartTesting::Written;

TEST(MountingPart, Defaults)
{
    MountingPart part(600);
    EXPECT_EQ(part.version, 600);
    EXPECT_EQ(part.partNumber, 0);
    EXPECT_TRUE(part.geoData.empty());
    EXPECT_EQ(part.partKind, L'0');
    EXPECT_EQ(part.partSubCode, 0);
    EXPECT_EQ(part.partCode, Spaces(10));
    EXPECT_EQ(part.partName, Spaces(40));
    EXPECT_TRUE(part.partText1.empty());
    EXPECT_TRUE(part.partText2.empty());
    EXPECT_EQ(part.partArea, 0.0);
    EXPECT_EQ(part.setValue1, 0);
    EXPECT_EQ(part.setValue2, 0);
    EXPECT_EQ(part.position, Point2d(0, 0));
    EXPECT_EQ(part.partValue1, 0);
    EXPECT_EQ(part.partValue2, 0);
    EXPECT_EQ(part.partWidth, 0u);
    EXPECT_EQ(part.partHeight, 0u);

    MountingPartData data;
    EXPECT_EQ(data.version, 502);
    EXPECT_TRUE(data.parts.empty());
}

TEST(MountingPartData, EmptyRecord)
{
    MountingPartData data;
    EXPECT_EQ(Written(data), L"MOUNPART\n502\n000\nEND\n");
    data.version = 501;
    EXPECT_EQ(Written(data), L"MOUNPART\n501\n00\nEND\n");
}

TEST(MountingPartData, DefaultPartAtVersion502)
{
    MountingPartData data;
    data.parts.push_back(MountingPart(502));
    EXPECT_EQ(Written(data), L"MOUNPART\n502\n001\n"
                             L"000 000 000 " +
                                 Spaces(10) + L" " + Spaces(40) +
                                 L"\n"
                                 L"00.000 000 000 0000 000 00000 00000 00\n"
                                 L"\n"
                                 L"END\n");
}

TEST(MountingPartData, Version500HasTwoDigitNumbers)
{
    MountingPartData data;
    data.version = 500;
    MountingPart part(500);
    part.partNumber = 1;
    data.parts.push_back(part);
    EXPECT_EQ(Written(data), L"MOUNPART\n500\n01\n"
                             L"01 000 000 " +
                                 Spaces(10) + L" " + Spaces(40) +
                                 L"\n"
                                 L"00.000 000 000 0000 000 00000 00000 00\n"
                                 L"\n"
                                 L"END\n");
}

TEST(MountingPartData, Version600AddsTwoTextLinesAndThePosition)
{
    MountingPartData data;
    data.version = 600;
    MountingPart part(600);
    part.partNumber = 1;
    part.position = Point2d(-120, 300);
    part.setValue2 = 40;
    data.parts.push_back(part);
    EXPECT_EQ(Written(data), L"MOUNPART\n600\n001\n"
                             L"001 000 000 " +
                                 Spaces(10) + L" " + Spaces(40) + L"\n" + Spaces(20) + L"\n" + Spaces(20) +
                                 L"\n"
                                 L"00.000 000 -00120 +00300 +00040 0000 000 00000 00000 00\n"
                                 L"\n"
                                 L"END\n");
}

TEST(MountingPart, FieldsAtVersion502)
{
    MountingPart part = AnchorChannel(502);
    EXPECT_EQ(Written(part), L"012 B34 000 HTA-40     Ankerschiene" + Spaces(28) +
                                 L"\n"
                                 L"06.000 005 007 1234 056 03000 02000 01\n"
                                 L"S 00000 00000 03000 02000 0000");
}

TEST(MountingPart, FieldsAtVersion600)
{
    MountingPart part = AnchorChannel(600);
    part.partText1 = L"Oben";
    part.partText2 = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    part.position = Point2d(1500, -1000);
    EXPECT_EQ(Written(part), L"012 B34 000 HTA-40     Ankerschiene" + Spaces(28) + L"\n" + Spaces(16) +
                                 L"Oben\n"
                                 L"ABCDEFGHIJKLMNOPQRST\n"
                                 L"06.000 005 +01500 -01000 +00007 1234 056 03000 02000 01\n"
                                 L"S +00000 +00000 +03000 +02000 0000");
}

TEST(MountingPart, KindAndSubCodeStandTogether)
{
    MountingPart part(502);
    part.partKind = L'A';
    part.partSubCode = 7;
    EXPECT_EQ(Written(part).substr(0, 12), L"000 A07 000 ");
}

TEST(MountingPart, LongNameIsCutToForty)
{
    MountingPart part(502);
    part.partName = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    part.partCode = L"0123456789ABC";
    EXPECT_EQ(Written(part).substr(0, 64), L"000 000 000 0123456789 ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmn\n");
}

TEST(MountingPart, AreaIsWrittenWithThreeDecimals)
{
    MountingPart part(502);
    part.partArea = 3.0; // 2000 by 1500
    EXPECT_EQ(Written(part).substr(64, 7), L"03.000 ");
    part.partArea = -1794.967296; // 50000 by 50000, wrapped in 32 bits
    EXPECT_EQ(Written(part).substr(64, 10), L"-1794.967 ");
}

TEST(MountingPart, WideNumbersPushTheLine)
{
    MountingPartData data;
    data.version = 500;
    MountingPart part(500);
    part.partNumber = 123;
    part.partWidth = 4000000000u;
    data.parts.push_back(part);
    const std::wstring text = Written(data);
    EXPECT_EQ(text.substr(16, 4), L"123 ");
    EXPECT_NE(text.find(L"00.000 000 000 0000 000 4000000000 00000 00\n"), std::wstring::npos);
}

TEST(MountingPart, CopyAndAssignmentKeepTheirOwnElements)
{
    MountingPart original = AnchorChannel(600);
    original.partText1 = L"T1";
    original.position = Point2d(4, 5);
    MountingPart copy(original);
    ExpectSameFields(copy, original);
    EXPECT_EQ(copy.version, 600);
    EXPECT_NE(copy.geoData[0].curve.get(), original.geoData[0].curve.get());
    copy.Clear();
    EXPECT_EQ(original.geoData.size(), 1u);

    MountingPart assigned(502);
    assigned = original;
    ExpectSameFields(assigned, original);
    EXPECT_EQ(assigned.version, 600);
    assigned.Add(original.geoData[0]);
    EXPECT_EQ(assigned.geoData.size(), 2u);
    EXPECT_EQ(original.geoData.size(), 1u);

    MountingPartData data;
    data.Add(original);
    MountingPartData dataCopy(data);
    dataCopy.Clear();
    EXPECT_EQ(data.parts.size(), 1u);
}

} // namespace
} // namespace ItUnitechnik
