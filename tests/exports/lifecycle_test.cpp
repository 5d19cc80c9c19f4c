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
