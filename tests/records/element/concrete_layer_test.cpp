#include "records/element/concrete_layer.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

std::wstring Spaces(std::size_t count)
{
    return std::wstring(count, L' ');
}

// The layer of kind 2, 0.2 m thick, factors 1.5 and 2400, name C30, as the
// first layer of an element.
ConcreteLayer C30Layer(std::int32_t version)
{
    ConcreteLayer layer(version);
    layer.layerNumber = 1;
    layer.layerKind = 2;
    layer.layerThickness = 200;
    layer.layerName = L"C30";
    layer.firstFactor = 1.5;
    layer.secondFactor = 2400.0;
    return layer;
}

TEST(ConcreteLayer, DefaultsAreEmpty)
{
    ConcreteLayer layer;
    EXPECT_EQ(layer.version, 502);
    EXPECT_EQ(layer.layerNumber, 0);
    EXPECT_EQ(layer.layerKind, 0);
    EXPECT_EQ(layer.layerThickness, 0);
    EXPECT_TRUE(layer.layerName.empty());
    EXPECT_EQ(layer.firstFactor, 0.0);
    EXPECT_EQ(layer.secondFactor, 0.0);
    EXPECT_TRUE(layer.layerText20.empty());
    EXPECT_EQ(ConcreteLayer(600).version, 600);
}

TEST(ConcreteLayer, WritesTheLongLineFromVersion600)
{
    StringArchive s;
    ConcreteLayer layer = C30Layer(600);
    EXPECT_TRUE(layer.Write(s.archive));
    EXPECT_EQ(s.Text(), L"01 02 200 C30" + Spaces(17) + L" 1.500 02400.0 " + Spaces(20));
}

TEST(ConcreteLayer, WritesTheSecondTextFromVersion600)
{
    StringArchive s;
    ConcreteLayer layer = C30Layer(600);
    layer.layerText20 = L"Sichtbeton";
    layer.Write(s.archive);
    EXPECT_EQ(s.Text(), L"01 02 200 C30" + Spaces(17) + L" 1.500 02400.0 Sichtbeton" + Spaces(10));
}

TEST(ConcreteLayer, WritesTheShortLineBelowVersion600)
{
    StringArchive s;
    ConcreteLayer layer = C30Layer(502);
    layer.layerText20 = L"not written";
    EXPECT_TRUE(layer.Write(s.archive));
    EXPECT_EQ(s.Text(), L"01 02 200 C30" + Spaces(5) + L" 1.500 02400.0");
}

TEST(ConcreteLayer, Version599IsStillTheShortLine)
{
    StringArchive s;
    ConcreteLayer layer = C30Layer(599);
    layer.Write(s.archive);
    EXPECT_EQ(s.Text(), L"01 02 200 C30" + Spaces(5) + L" 1.500 02400.0");
}

TEST(ConcreteLayer, LongNameIsCutToItsField)
{
    StringArchive shortLine;
    ConcreteLayer old = C30Layer(502);
    old.layerName = L"ABCDEFGHIJ";
    old.Write(shortLine.archive);
    EXPECT_EQ(shortLine.Text(), L"01 02 200 ABCDEFGH 1.500 02400.0");

    StringArchive longLine;
    ConcreteLayer layer = C30Layer(600);
    layer.layerName = L"ABCDEFGHIJKLMNOPQRSTUVWXY";
    layer.layerText20 = L"abcdefghijklmnopqrstuvwxy";
    layer.Write(longLine.archive);
    EXPECT_EQ(longLine.Text(), L"01 02 200 ABCDEFGHIJKLMNOPQRST 1.500 02400.0 abcdefghijklmnopqrst");
    EXPECT_EQ(layer.layerName.size(), 25u);
}

TEST(ConcreteLayer, ThickLayerWidensItsField)
{
    StringArchive s;
    ConcreteLayer layer = C30Layer(502);
    layer.layerThickness = 1000;
    layer.Write(s.archive);
    EXPECT_EQ(s.Text(), L"01 02 1000 C30" + Spaces(5) + L" 1.500 02400.0");
}

TEST(ConcreteLayer, DefaultLayerAtVersion502)
{
    StringArchive s;
    ConcreteLayer layer(502);
    layer.Write(s.archive);
    EXPECT_EQ(s.Text(), L"00 00 000" + Spaces(10) + L"0.000 00000.0");
}

TEST(ConcreteLayer, ReadsTheLongLineWithItsBlanks)
{
    StringArchive s(L"01 02 200 C30" + Spaces(17) + L" 1.500 02400.0 Sichtbeton" + Spaces(10));
    ConcreteLayer layer(600);
    EXPECT_TRUE(layer.Read(s.archive));
    EXPECT_EQ(layer.layerNumber, 1);
    EXPECT_EQ(layer.layerKind, 2);
    EXPECT_EQ(layer.layerThickness, 200);
    EXPECT_EQ(layer.layerName, L"C30" + Spaces(17));
    EXPECT_EQ(layer.firstFactor, 1.5);
    EXPECT_EQ(layer.secondFactor, 2400.0);
    EXPECT_EQ(layer.layerText20, L"Sichtbeton" + Spaces(10));
}

TEST(ConcreteLayer, ReadsTheShortLineAndLeavesTheSecondTextEmpty)
{
    StringArchive s(L"03 01 1000 C30" + Spaces(5) + L" 1.500 02400.0\n");
    ConcreteLayer layer(502);
    layer.layerText20 = L"left over";
    EXPECT_TRUE(layer.Read(s.archive));
    EXPECT_EQ(layer.layerNumber, 3);
    EXPECT_EQ(layer.layerKind, 1);
    EXPECT_EQ(layer.layerThickness, 1000);
    EXPECT_EQ(layer.layerName, L"C30     ");
    EXPECT_EQ(layer.firstFactor, 1.5);
    EXPECT_EQ(layer.secondFactor, 2400.0);
    EXPECT_TRUE(layer.layerText20.empty());
}

TEST(ConcreteLayer, WrittenLayerReadsBackAtBothVersions)
{
    for (std::int32_t version : {502, 600}) {
        ConcreteLayer written = C30Layer(version);
        written.layerName = version < 600 ? L"ABCDEFGH" : L"ABCDEFGHIJKLMNOPQRST";
        written.layerText20 = version < 600 ? L"" : L"abcdefghijklmnopqrst";
        StringArchive out;
        ASSERT_TRUE(written.Write(out.archive));

        StringArchive in(out.Text());
        ConcreteLayer read(version);
        EXPECT_TRUE(read.Read(in.archive));
        EXPECT_EQ(read.layerNumber, written.layerNumber);
        EXPECT_EQ(read.layerKind, written.layerKind);
        EXPECT_EQ(read.layerThickness, written.layerThickness);
        EXPECT_EQ(read.layerName, written.layerName);
        EXPECT_EQ(read.firstFactor, written.firstFactor);
        EXPECT_EQ(read.secondFactor, written.secondFactor);
        EXPECT_EQ(read.layerText20, written.layerText20);
    }
}

TEST(ConcreteLayer, ReadFailsOnAMissingNumber)
{
    StringArchive s(L"01 xx 200 C30      1.500 02400.0");
    ConcreteLayer layer(502);
    EXPECT_FALSE(layer.Read(s.archive));
    EXPECT_TRUE(s.archive.valid);
}

TEST(ConcreteLayer, ResultsIncludeTheArchivesValidFlag)
{
    StringArchive out;
    out.archive.valid = false;
    ConcreteLayer layer = C30Layer(502);
    EXPECT_FALSE(layer.Write(out.archive));

    StringArchive in(L"01 02 200 C30      1.500 02400.0");
    in.archive.valid = false;
    EXPECT_FALSE(layer.Read(in.archive));
}

} // namespace
} // namespace ItUnitechnik
