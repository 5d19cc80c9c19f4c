#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik {
namespace {

using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;

const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};

std::u16string Host(const std::string& ascii)
{
    return std::u16string(ascii.begin(), ascii.end());
}

#ifdef _WIN32
const it_char16* C(const std::u16string& text)
{
    return reinterpret_cast<const wchar_t*>(text.c_str());
}
#else
const it_char16* C(const std::u16string& text)
{
    return text.c_str();
}
#endif

class LifecycleTest : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }
    TemporaryDirectory dir;
};

TEST_F(LifecycleTest, StartOrderAlwaysReturnsOneAndCopiesTheVersion)
{
    const std::u16string text = Host("E");
    EXPECT_EQ(startOrder(9, 1, placement, 600, C(text), 0.0, true), 1);
    ASSERT_EQ(theDocument.orders.size(), 1u);
    EXPECT_EQ(theDocument.orders[0].version, 600);
    EXPECT_EQ(theDocument.orders[0].date.version, 600);
    EXPECT_EQ(theDocument.orders[0].orderValue2, 9);
}

TEST_F(LifecycleTest, TheVersionIsSixteenBitsSigned)
{
    const std::u16string text = Host("E");
    startOrder(65535, 1, placement, 65535, C(text), 0.0, true);
    EXPECT_EQ(theDocument.orders[0].version, -1);
    EXPECT_EQ(theDocument.orders[0].orderValue2, -1);
}

TEST_F(LifecycleTest, WithoutClearingOrdersAccumulate)
{
    const std::u16string text = Host("E");
    startOrder(1, 1, placement, 502, C(text), 0.0, true);
    startOrder(2, 1, placement, 600, C(text), 0.0, false);
    ASSERT_EQ(theDocument.orders.size(), 2u);
    EXPECT_EQ(theDocument.orders[1].orderValue2, 2);
    startOrder(3, 1, placement, 600, C(text), 0.0, true);
    ASSERT_EQ(theDocument.orders.size(), 1u);
    EXPECT_EQ(theDocument.orders[0].orderValue2, 3);
}

TEST_F(LifecycleTest, EndDocumentWritesTwoHeaderRecordsAndKeepsTheDocument)
{
    const std::u16string text = Host("E");
    startOrder(1, 1, placement, 502, C(text), 0.0, true);
    startOrder(2, 1, placement, 502, C(text), 0.0, false);
    const std::string path = dir.File("a.txt");
    const std::u16string hostPath = Host(path);
    EXPECT_EQ(endDocument(C(hostPath)), 1);
    const std::string bytes = ReadFileBytes(path);
    EXPECT_EQ(bytes.find("HEADER__\r\n"), 0u);
    EXPECT_NE(bytes.find("\r\nHEADER__\r\n"), std::string::npos);
    EXPECT_EQ(theDocument.orders.size(), 2u);
}

} // namespace
} // namespace ItUnitechnik

namespace ItUnitechnik {
namespace {

class StartOrderElementTest : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    static const ElementPart& Start(int32_t number, const double* where, uint16_t version)
    {
        const std::u16string text = u"Slab 1";
        startOrder(1, number, where, version, reinterpret_cast<const it_char16*>(text.c_str()), 1.5, true);
        return theDocument.orders.back().elementParts.back();
    }
};

TEST_F(StartOrderElementTest, TheOrderGetsItsOneElement)
{
    const double where[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
    const ElementPart& element = Start(101, where, 600);
    ASSERT_EQ(theDocument.orders.back().elementParts.size(), 1u);
    EXPECT_EQ(element.version, 600);
    EXPECT_EQ(element.elementMeasure, 1.5);
    EXPECT_EQ(element.elementText30, L"Slab 1");
    EXPECT_EQ(element.elementNumber, 101);
    EXPECT_EQ(element.elementNumberText, L"101");
}

TEST_F(StartOrderElementTest, TheNumberIsCutTo16BitsItsTextIsNot)
{
    const double where[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
    const ElementPart& large = Start(70000, where, 502);
    EXPECT_EQ(large.elementNumber, 4464);
    EXPECT_EQ(large.elementNumberText, L"70000");
    const ElementPart& negative = Start(-5, where, 502);
    EXPECT_EQ(negative.elementNumber, -5);
    EXPECT_EQ(negative.elementNumberText, L"-5");
}

TEST_F(StartOrderElementTest, PlacementsRoundHalvesAwayFromZero)
{
    const double where[9] = {2.5, -2.5, 2.4, -2.4, 2.6, 1000.5, 0.49999, -0.5, 7};
    const ElementPart& element = Start(1, where, 600);
    EXPECT_EQ(element.firstPoint, Point3d(3, -3, 2));
    EXPECT_EQ(element.secondPoint, Point3d(-2, 3, 1001));
    EXPECT_EQ(element.thirdPoint, Point3d(0, -1, 7));
}

TEST_F(StartOrderElementTest, TheCountLineShowsOne)
{
    const double where[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
    Start(1, where, 502);
    Testing::TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    const std::u16string hostPath(path.begin(), path.end());
    endDocument(reinterpret_cast<const it_char16*>(hostPath.c_str()));
    const std::string bytes = Testing::ReadFileBytes(path);
    EXPECT_NE(bytes.find("\r\n0 01 000\r\nEND\r\nSLABDATE\r\n502\r\n"), std::string::npos);
    EXPECT_EQ(bytes.substr(bytes.size() - 33), "END\r\nEND SLABDATE\r\nEND HEADER__\r\n");
}

} // namespace
} // namespace ItUnitechnik
